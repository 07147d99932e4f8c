#include <limits>
#include <random>

#include "../StepPlan.h"
#include "dbc_ModelFile.h"
#include "kbcC_DisplacementBC.h"
#include "kbcC_SubmodelBC.h"
#include "kbcC_TemperatureBC.h"
#include "kprC_TimePoint.h"

// A walk over what a walk has left changes nothing, whatever steps and edits have come before.

namespace {

using Ints = std::vector<int>;

void Prescribe(kbcC_DisplacementBCState& state, int value) { state.u1 = value; }
void Prescribe(kbcC_TemperatureBCState& state, int value) { state.magnitude = value; }
void Prescribe(kbcC_SubmodelBCState& state, int value) { state.globalStep = cow_String(std::to_string(value)); }

template <class BC>
class SettledWalkTest : public testing::Test {
 protected:
  using State = std::remove_cvref_t<decltype(std::declval<BC const&>().ConstGetState(cow_String()))>;

  static State Value(int value) {
    State state;
    Prescribe(state, value);
    return state;
  }

  /// The steps made from other objects, so that the quads are laid out anew, then a walk over just these.
  static void ExpectSettled(BC const& bc, std::string const& plan) {
    BC again = bc;
    for (int walk = 2; walk < 4; ++walk) {
      auto const steps = Steps(plan);
      again.Initialize(steps);
      again.Initialize(steps);
      ASSERT_EQ(Statuses(again), Statuses(bc)) << "walk " << walk << " over " << plan;
      ASSERT_TRUE(cls_EqualValues(again, bc)) << "walk " << walk << " over " << plan;
    }
  }
};

using Kinds = testing::Types<kbcC_DisplacementBC, kbcC_TemperatureBC, kbcC_SubmodelBC>;
TYPED_TEST_SUITE(SettledWalkTest, Kinds);

// B comes to refuse the type after it has deactivated the object.
TYPED_TEST(SettledWalkTest, ADeactivationInARefusingStepHolds) {
  struct Row {
    char const* plan;
    Ints history;
  };
  // In N every type is refused, in P and M not one of those that may stand there.
  for (Row const& row : {Row{"A:T B:N C:T D:T", {0, 1, 6, 4, 5}},
                         {"A:T B:N C:P D:T E:T", {0, 1, 6, 4, 5, 5}},
                         {"A:T B:N C:M D:P E:T", {0, 1, 6, 4, 5, 5}},
                         {"A:T B:N C:P! D:P E:M F:T", {0, 1, 6, 4, 4, 5, 5}},
                         {"A:T B:N C:N D:P E:N F:T", {0, 1, 6, 6, 4, 6, 5}},
                         {"A:T B:N C:N D:N", {0, 1, 6, 6, 6}}}) {
    TypeParam bc;
    bc.Insert("A", this->Value(1));
    bc.Initialize(Steps("A:T B:T C:T D:T"));
    bc.Insert("C", this->Value(2));
    bc.Deactivate("B");
    bc.Initialize(Steps(row.plan));
    EXPECT_EQ(Statuses(bc), row.history) << row.plan;
    this->ExpectSettled(bc, row.plan);
  }
}

TYPED_TEST(SettledWalkTest, ADeactivationThatWasPassedOnIsLikeAnyOther) {
  TypeParam bc;
  bc.Insert("A", this->Value(1));
  bc.Initialize(Steps("A:T B:T C:P D:T"));
  auto const before = Statuses(bc);
  bc.Deactivate("B");
  bc.Initialize(Steps("A:T B:N C:P D:T"));
  EXPECT_EQ(Statuses(bc), (Ints{0, 1, 6, 4, 5}));
  TypeParam onward = bc;
  onward.Initialize(Steps("A:T B:T C:N D:P E:T"));
  EXPECT_EQ(Statuses(onward), (Ints{0, 1, 2, 6, 4, 5}));
  bc.Initialize(Steps("A:T B:T C:P D:T"));
  EXPECT_EQ(Statuses(bc), (Ints{0, 1, 2, 4, 5}));
  bc.Reset("C");
  EXPECT_EQ(Statuses(bc), before);
}

TYPED_TEST(SettledWalkTest, AnyStepsAndEditsAreSettledByOneWalk) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    std::mt19937 random(seed);
    auto const below = [&random](unsigned n) { return static_cast<int>(random() % n); };
    std::vector<std::string> steps;
    auto const anyStep = [&](char name) {
      return std::string(1, name) + ':' + "TTTTPFMDNH"[below(10)] + (below(4) == 0 ? "!" : "");
    };
    for (char name = 'A'; name < 'I'; ++name) steps.push_back(anyStep(name));
    steps.front() = "A:T";
    auto const anyName = [&] { return cow_String(std::string(1, static_cast<char>('A' + below(8)))); };
    auto const plan = [&] {
      std::string words;
      for (std::string const& step : steps) words += step + ' ';
      return words;
    };

    TypeParam bc;
    bc.Insert("A", this->Value(1));
    bc.Initialize(Steps(plan()));
    for (int i = 0; i < 60; ++i) {
      TypeParam const before = bc;
      auto const stepsBefore = steps;
      cow_String const step = anyName();
      try {
        switch (below(6)) {
          case 0: bc.Insert(step, this->Value(below(5))); break;
          case 1: bc.Deactivate(step); break;
          case 2: bc.Reset(step); break;
          case 3: bc.Move(step, anyName()); break;
          default: {
            int const at = below(8);
            steps[static_cast<std::size_t>(at)] = anyStep(static_cast<char>('A' + at));
            bc.Initialize(Steps(plan()));
          }
        }
      } catch (std::exception const&) {
        bc = before;
        steps = stepsBefore;
      }
      SCOPED_TRACE(testing::Message() << "seed " << seed << ", edit " << i);
      ASSERT_NO_FATAL_FAILURE(this->ExpectSettled(bc, plan()));
      // What a step deactivates stays so.
      bool deactivated = false;
      for (auto const& quad : bc.States()) {
        ASSERT_FALSE(deactivated && bc.IsActive(quad.status)) << quad.stepName.CStr() << " in " << plan();
        deactivated = deactivated || (quad.status == STATUS_DEACTIVATED && !quad.IsStepSuppressed());
      }
    }
  }
}

// A file may hold it. It differed from itself, so no model with it equalled its copy and no walk came to an end.
TEST(NotANumberTest, IsAValueLikeAnother) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  kbcC_DisplacementBCState state;
  state.u1 = none;
  kbcC_DisplacementBC bc;
  bc.Insert("A", state);
  bc.Initialize(Steps("A B"));
  auto const identity = bc.States().Uid();
  bc.Sync();
  EXPECT_EQ(bc.States().Uid(), identity);
  state.cU2 = omi_complex(none, 1.0);
  kprC_StaticStep step;
  step.minInc = none;
  kprC_TimePoint points;
  points.points.Append({none});
  for (cls_Persistent const* object : std::initializer_list<cls_Persistent const*>{&bc, &state, &step, &points}) {
    EXPECT_TRUE(cls_EqualValues(*dbc_DecodeObject(dbc_EncodeObject(*object), "model"), *object));
  }
  EXPECT_FALSE(step.DynAttributes().Find("minInc")->SetText(step, "nan"));
}

}  // namespace
