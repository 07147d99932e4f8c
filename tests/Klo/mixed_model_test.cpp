#include <unistd.h>

#include <filesystem>
#include <random>
#include <set>

#include "../StepPlan.h"
#include "dbc_ModelFile.h"
#include "kbcC_DisplacementBC.h"
#include "kbcC_ModelMembers.h"
#include "kloC_ConcentratedForce.h"
#include "kloC_Gravity.h"
#include "kloC_ModelMembers.h"
#include "kloC_Pressure.h"

namespace {

using Conditions = kprC_PropagatingContainer<kbcC_BC>;
using Loads = kprC_PropagatingContainer<kloC_Load>;

/// A model of loads and boundary conditions over many steps, through random changes of the steps and of the objects.
class MixedModel {
 public:
  explicit MixedModel(unsigned int seed) : random_(seed) {
    for (std::size_t i = 0; i < 20; ++i) plan_.push_back({"S" + std::to_string(i), "GGGGGFM"[i % 7], false});
    Carry("", false);
    for (int i = 0; i < 30; ++i) AddObjects(i);
  }

  /// One change; refused ones leave the model as a copy of before.
  void Change() {
    ddr_Model const before = model_;
    std::unique_ptr<ddr_Model> const deep(static_cast<ddr_Model*>(DDB_DeepCopyPtr(&before, ddr_Model::TypeId())));
    auto const planBefore = plan_;
    try {
      Any();
    } catch (std::exception const&) {
      model_ = before;
      plan_ = planBefore;
      ++refused_;
    }
    ASSERT_TRUE(cls_EqualValues(before, *deep)) << "a copy saw the change";
    Check<kbcC_BC>({0, 1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12});
    Check<kloC_Load>({0, 1, 2, 3, 4, 5, 6, 7, 8});
  }

  void CheckSaved() const {
    std::string const path = testing::TempDir() + "mixed_model_" + std::to_string(getpid());
    dbc_SaveObject(model_, cow_String(path));
    auto const opened = dbc_Open<ddr_Model>(cow_String(path));
    EXPECT_TRUE(cls_EqualValues(model_, *opened));
    std::filesystem::remove(path);
  }
  int Refused() const { return refused_; }
  std::set<int> const& Met() const { return met_; }

 private:
  struct Step {
    std::string name;
    char procedure;
    bool suppressed;
  };

  std::size_t Below(std::size_t n) { return random_() % n; }
  template <class T>
  kprC_PropagatingContainer<T>& Container() {
    return ddr_MemberShortcut<ddr_Model, kprC_PropagatingContainer<T>, 1>().Get(model_);
  }
  template <class T>
  kprC_PropagatingContainer<T> const& ConstContainer() const {
    return ddr_MemberShortcut<ddr_Model, kprC_PropagatingContainer<T>, 1>().ConstGet(model_);
  }
  void Carry(std::string const& changed, bool suppress) {
    std::string words;
    for (Step const& step : plan_) words += step.name + ":" + step.procedure + (step.suppressed ? "! " : " ");
    kprC_StepList const steps = Steps(words);
    Container<kbcC_BC>().UpdateSteps(steps, cow_String(changed), suppress);
    Container<kloC_Load>().UpdateSteps(steps, cow_String(changed), suppress);
  }
  void AddObjects(int i) {
    cow_String const step(plan_[Below(plan_.size())].name);
    cow_String const key("object" + std::to_string(i));
    try {
      kbcC_DisplacementBC condition;
      kbcC_DisplacementBCState held;
      held.u1 = 0.5;
      condition.Insert(step, held);
      Container<kbcC_BC>().Insert(key, condition);
      if (i % 3 == 0) {
        kloC_Pressure pressure;
        kloC_PressureState state;
        state.magnitude = 1.0 + i;
        pressure.Insert(step, state);
        Container<kloC_Load>().Insert(key, pressure);
      } else {
        kloC_ConcentratedForce force;
        kloC_ConcentratedForceState state;
        state.c2 = 1.0 + i;
        force.Insert(step, state);
        Container<kloC_Load>().Insert(key, force);
      }
    } catch (std::exception const&) {  // that step takes none
    }
  }
  template <class T>
  T* AnyObject() {
    cow_List<cow_String> const keys = ConstContainer<T>().Keys();
    if (keys.IsEmpty()) return nullptr;
    std::size_t const at = Below(static_cast<std::size_t>(keys.Length()));
    return &Container<T>().Get(keys[static_cast<int>(at)]);
  }
  template <class T>
  void EditAny() {
    T* const object = AnyObject<T>();
    if (object == nullptr) return;
    cow_String const step(plan_[Below(plan_.size())].name);
    switch (Below(4)) {
      case 0: {
        if (object->StateIn(step) == nullptr) return;
        std::unique_ptr<kprC_StepState> const state(object->StateIn(step)->Copy());
        for (cls_Attribute const* attribute : state->DynAttributes().All()) {
          auto* const value = dynamic_cast<mdl_PropAttr<double>*>(attribute->Embedded(*state));
          if (value != nullptr) *value = 1.0 + static_cast<double>(Below(3));
        }
        object->InsertState(step, *state);
        return;
      }
      case 1:
        if (step != object->CreateStepName()) object->Deactivate(step);
        return;
      case 2: object->Reset(step); return;
      default: object->Move(object->CreateStepName(), step); return;
    }
  }
  void Any() {
    std::size_t const at = Below(plan_.size());
    switch (Below(7)) {
      case 0:
        plan_.insert(plan_.begin() + static_cast<std::ptrdiff_t>(at),
                     {"N" + std::to_string(++named_), "GGFM"[Below(4)], false});
        Carry("", false);
        break;
      case 1:
        if (plan_.size() < 10) return;
        plan_.erase(plan_.begin() + static_cast<std::ptrdiff_t>(at));
        Carry("", false);
        break;
      case 2:
        plan_[at].procedure = "GGFM"[Below(4)];
        Carry("", false);
        break;
      case 3:
        plan_[at].suppressed = !plan_[at].suppressed;
        Carry(plan_[at].name, plan_[at].suppressed);
        break;
      case 4: AddObjects(static_cast<int>(Below(30))); break;
      case 5: EditAny<kbcC_BC>(); break;
      default: EditAny<kloC_Load>(); break;
    }
  }

  /// Statuses are the family's, states stand where something is in force, and another walk changes nothing.
  template <class T>
  void Check(std::set<int> const& allowed) {
    auto const& container = ConstContainer<T>();
    for (cow_String const& key : container.Keys()) {
      T const& object = container.ConstGet(key);
      ASSERT_EQ(object.States().Length(), static_cast<int>(plan_.size()) + 1);
      for (auto const& quad : object.States()) {
        ASSERT_TRUE(allowed.contains(quad.status)) << key << " " << quad.status;
        if constexpr (std::is_same_v<T, kloC_Load>) met_.insert(quad.status);
        bool const holds = quad.status != STATUS_BUILT_IN && quad.status != STATUS_BASE_BUILT_IN &&
                           quad.status != STATUS_NONE && quad.status != STATUS_INACTIVE &&
                           quad.status != STATUS_INSTANCE_INVALID && quad.status != STATUS_TYPE_INVALID;
        ASSERT_TRUE(quad.state.HasValue() || !holds) << key << " in " << quad.stepName;
      }
      std::unique_ptr<T> const again(object.Copy());
      again->ForcedInitialize(container.Procedures());
      ASSERT_TRUE(cls_EqualValues(*again, object)) << key;
    }
  }

  std::mt19937 random_;
  ddr_Model model_;
  std::vector<Step> plan_;
  int named_ = 0;
  int refused_ = 0;
  std::set<int> met_;
};

TEST(MixedModelTest, AnySequenceOfChangesKeepsTheInvariants) {
  std::set<int> met;
  for (unsigned int seed = 1; seed <= 4; ++seed) {
    MixedModel model(seed);
    for (int i = 0; i < 100 && !testing::Test::HasFatalFailure(); ++i) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << ", change " << i);
      model.Change();
    }
    model.CheckSaved();
    EXPECT_LT(model.Refused(), 40) << "the sequences mostly try what is refused";
    met.insert(model.Met().begin(), model.Met().end());
  }
  EXPECT_EQ(met, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8})) << "the sequences miss a status of loads";
}

}  // namespace
