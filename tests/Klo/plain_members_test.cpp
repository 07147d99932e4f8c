#include "../StepPlan.h"
#include "cls_Registrar.h"
#include "kprC_StepObject.h"

namespace {

template <class T>
std::unique_ptr<T> New(std::string_view name) {
  for (auto const& [id, metadata] : cls_ClassRegistrar::Present().All()) {
    if (metadata->Name().View() == name) return std::unique_ptr<T>(static_cast<T*>(metadata->New()));
  }
  throw std::out_of_range(std::string(name));
}

/// A kind of object whose state has a member that does not know how it came to be in a step.
struct Kind {
  char const* object;
  char const* attributes;
  char const* values;
  std::string member;
  char const* first;
  char const* second;
};

Kind const kinds[] = {
    {"kbcC_SubmodelBC", "", "dof=1,2", "globalStep", "1", "2"},
    {"kloC_SubmodelStressBased", "", "", "globalIncrement", "1", "2"},
    {"kloC_LineLoad", "", "c1=1", "useC3", "false", "true"},
    {"kloC_PipePressure", "diameter=1", "magnitude=1 hZero=3", "useHydrostatic", "false", "true"},
};

// Nothing but such a member was changed, and the change was dropped without a word as if the step inherited it all.
TEST(PlainMembersTest, AnEditOfOneAloneIsCarriedOnHoweverOftenItIsGiven) {
  for (Kind const& kind : kinds) {
    SCOPED_TRACE(kind.object);
    auto const object = New<kprC_StepObject>(kind.object);
    SetAttributes(*object, kind.attributes);
    auto const created = New<kprC_StepState>(object->DynAttributes().StepState()->Name().View());
    SetAttributes(*created, kind.values);
    SetAttributes(*created, kind.member + '=' + kind.first);
    object->InsertState("A", *created);
    object->Initialize(Steps("A B C"));

    auto const history = [&] {
      std::string text;
      for (int const status : object->History()) text += std::to_string(status);
      for (char const* step : {"A", "B", "C"}) {
        kprC_StepState const& state = *object->StateIn(step);
        text += ' ' + state.DynAttributes().Find(kind.member)->Text(state);
      }
      return text;
    };
    auto const values = [&](char const* inBAndC) {
      return std::string(" ") + kind.first + ' ' + inBAndC + ' ' + inBAndC;
    };
    EXPECT_EQ(history(), "0122" + values(kind.first));
    std::unique_ptr<kprC_StepState> const edit(object->StateIn("B")->Copy());
    SetAttributes(*edit, kind.member + '=' + kind.second);
    for (int i = 0; i < 2; ++i) {
      object->InsertState("B", *edit);
      EXPECT_EQ(history(), "0132" + values(kind.second));
    }
    std::unique_ptr<kprC_StepState> const inherited(object->StateIn("A")->Copy());
    inherited->Propagate();
    object->InsertState("B", *inherited);
    EXPECT_EQ(history(), "0122" + values(kind.first));
  }
}

}  // namespace
