#include <algorithm>

#include "../StepPlan.h"
#include "kbcC_DisplacementBC.h"
#include "nex_Exception.h"
#include "omu_Histories.h"

namespace {

auto* const environment = ::testing::AddGlobalTestEnvironment(new LibraryEnvironment());

using Container = kprC_PropagatingContainer<kbcC_BC>;
using BC = kbcC_DisplacementBC;
using Ints = std::vector<int>;
using Names = std::vector<std::string>;

omu_ChangeHistory& Changes() { return thr_ThreadSingleton<omu_ChangeHistory>::Instance(); }
omu_CmdHistory& Commands() { return thr_ThreadSingleton<omu_CmdHistory>::Instance(); }

/// The noted changes as "path what key", and none from then on.
Names TakeChanges() {
  Names changes;
  for (omu_Change const& change : Changes().Changes()) {
    std::string text = change.path.CStr();
    for (omu_Prim const& part : change.what) {
      if (auto const* const name = std::get_if<cow_String>(&part)) {
        text += (text.empty() ? "" : " ") + std::string(name->CStr());
      }
      if (auto const* const number = std::get_if<int>(&part)) text += " " + std::to_string(*number);
    }
    changes.push_back(text);
  }
  Changes().Clear();
  return changes;
}

template <class List>
Names NamesOf(List const& list) {
  Names names;
  for (auto const& element : list) {
    if constexpr (requires { element.name; }) {
      names.push_back(element.name.CStr());
    } else {
      names.push_back(element.CStr());
    }
  }
  return names;
}

BC Condition(cow_String const& step, cow_String const& region) {
  BC bc;
  kbcC_DisplacementBCState state;
  if (step != "Initial") state.u1 = 1.0;
  bc.region = rgnC_Region(region, 1);
  bc.Insert(step, state);
  return bc;
}

/// Twenty conditions "bc00" to "bc19", created in turn in Initial, A, B and C, on the regions "r0" to "r6" in turn.
class PropagatingContainerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    bcs.UpdateSteps(Steps("A B C D"), "", false);
    for (int i = count - 1; i >= 0; --i) {
      ASSERT_TRUE(bcs.Insert(Key(i), Condition(createSteps[i % 4], cow_String("r" + std::to_string(i % 7)))));
    }
    bcs.ResetDeltaList();
    Changes().Clear();
    Commands().Clear();
  }
  void TearDown() override {
    Changes().Clear();
    Commands().Clear();
  }

  static cow_String Key(int i) { return cow_String((i < 10 ? "bc0" : "bc") + std::to_string(i)); }
  /// Keys of the conditions created in one of the four steps.
  static Names KeysOf(int createStep) {
    Names keys;
    for (int i = createStep; i < count; i += 4) keys.push_back(Key(i).CStr());
    return keys;
  }
  Names AllKeys(std::string const& before) const {
    Names keys;
    for (cow_String const& key : bcs.Keys()) keys.push_back(before + key.CStr());
    return keys;
  }
  Ints History(int i) const { return Statuses(bcs.ConstGet(Key(i))); }

  /// After any change of the steps every object stands as if it had been put into the new list of steps.
  void CheckAgainstFresh(kprC_StepList const& steps) const {
    Container fresh;
    fresh.UpdateSteps(steps, "", false);
    for (cow_String const& key : bcs.Keys()) {
      ASSERT_TRUE(fresh.Insert(key, bcs.ConstGet(key)));
      EXPECT_TRUE(cls_EqualValues(fresh.ConstGet(key), bcs.ConstGet(key))) << key.CStr();
    }
    EXPECT_TRUE(cls_EqualValues(steps[steps.Length() - 1], bcs.Procedures().Last()));
    Changes().Clear();
  }
  void Update(std::string const& plan, cow_String const& changed = "", bool suppress = false) {
    kprC_StepList const steps = Steps(plan);
    bcs.UpdateSteps(steps, changed, suppress);
    changes = TakeChanges();
    CheckAgainstFresh(steps);
  }

  static constexpr int count = 20;
  static constexpr char const* createSteps[] = {"Initial", "A", "B", "C"};
  Container bcs;
  Names changes;
};

TEST_F(PropagatingContainerTest, AnInsertedStepReachesEveryObject) {
  Commands().Add("model.steps");
  Update("A X B C D");
  EXPECT_EQ(History(0), (Ints{1, 2, 2, 2, 2, 2}));
  EXPECT_EQ(History(1), (Ints{0, 1, 2, 2, 2, 2}));
  EXPECT_EQ(History(2), (Ints{0, 0, 0, 1, 2, 2}));
  Names expected = AllKeys("model.steps.");
  for (std::string& record : expected) record += " Modify " + record.substr(record.size() - 4);
  expected.insert(expected.begin(), "RedoSummary");
  EXPECT_EQ(changes, expected);
  Update("A X B C D E:F");
  EXPECT_EQ(History(3), (Ints{0, 0, 0, 0, 1, 2, 9}));
  Commands().Clear();
  Update("Z A X B C D E:F");
  EXPECT_EQ(changes, Names{"RedoSummary"});
  EXPECT_EQ(bcs.Size(), count);
}

TEST_F(PropagatingContainerTest, ARemovedStepTakesItsObjectsAlong) {
  // 2, 6, 10, 14 and 18 go. Each of their regions is held by others, until 9, 13 and 16 are gone, too.
  for (int const i : {9, 13, 16}) bcs.Remove(Key(i));
  TakeChanges();
  Commands().Add("cmd");
  Update("A C D");
  EXPECT_EQ(bcs.Size(), count - 3 - 5);
  EXPECT_FALSE(bcs.IsMember("bc02"));
  EXPECT_EQ(History(3), (Ints{0, 0, 1, 2}));
  EXPECT_EQ(changes.front(), "RedoSummary");
  EXPECT_EQ(changes[1], "cmd.bc00 Modify bc00");
  EXPECT_EQ(changes[3], "Remove bc02");
  EXPECT_TRUE(std::is_sorted(changes.begin() + 1, changes.end(), [](std::string const& a, std::string const& b) {
    return a.substr(a.size() - 4) < b.substr(b.size() - 4);
  }));
  // Region r2 stood under 2, 9 and 16, r6 under 6 and 13; only the last of them leaves it.
  EXPECT_EQ(NamesOf(bcs.DanglingRegions()), (Names{"r2", "r6"}));
  EXPECT_TRUE(bcs.DanglingRegions().IsEmpty());
  // Removals add up until somebody looks.
  Update("C D");
  EXPECT_TRUE(bcs.DanglingRegions().IsEmpty());
  Update("D");
  bcs.Remove("bc04");
  EXPECT_EQ(NamesOf(bcs.DanglingRegions()), (Names{"r3"}));
  rgnC_Region const unused("r4", 1);
  cls_xoList<rgnC_Region> const asked = {unused, rgnC_Region("r0", 1), rgnC_Region("r0"), unused};
  EXPECT_EQ(NamesOf(bcs.DanglingRegions(asked)), (Names{"r4", "r0", "r4"}));
  bcs.Clear();
  EXPECT_EQ(NamesOf(bcs.DanglingRegions({rgnC_Region("r0", 1), rgnC_Region("r0", 1)})), (Names{"r0", "r0"}));
}

TEST_F(PropagatingContainerTest, ARenamedStepKeepsItsObjects) {
  Commands().Add("cmd");
  Update("A B Y D");
  EXPECT_EQ(bcs.ConstGet("bc03").CreateStepName(), "Y");
  EXPECT_EQ(History(3), (Ints{0, 0, 0, 1, 2}));
  EXPECT_EQ(changes.size(), std::size_t{count});
  // One name changes in a call.
  bcs.UpdateSteps(Steps("P Q Y D"), "", false);
  EXPECT_EQ(bcs.ConstGet("bc01").CreateStepName(), "P");
}

TEST_F(PropagatingContainerTest, AReplacedStepSuppressesWhatItDoesNotTake) {
  bcs.Get("bc05").Suppress(false, false);
  bcs.Get("bc09").Suppress(true, false);
  TakeChanges();
  Commands().Add("cmd");
  Update("A:H B C D");
  EXPECT_EQ(NamesOf(bcs.InvalidKeys()), (Names{"bc01", "bc09", "bc13", "bc17"}));
  EXPECT_EQ(bcs.Size(), count);
  EXPECT_EQ(bcs.UnsuppressedSize(), count - 5);
  for (int i = 1; i < count; i += 4) EXPECT_EQ(bcs.ConstGet(Key(i)).suppressionState, SUPPRESSED_ATTRIBUTE) << i;
  EXPECT_TRUE(bcs.DanglingRegions().IsEmpty());
  EXPECT_EQ(History(0), (Ints{1, 6, 2, 2, 2}));
  // First what the replacement did, then all that were initialized again.
  EXPECT_EQ(changes.size(), std::size_t{4 + count});
  EXPECT_EQ(changes[1], "cmd.bc09 Modify bc09");
  EXPECT_EQ(changes[4], "cmd.bc00 Modify bc00");

  Update("A B C D");
  EXPECT_TRUE(bcs.InvalidKeys().IsEmpty());
  EXPECT_EQ(History(0), (Ints{1, 2, 2, 2, 2}));
  bcs.Get("bc09").Resume(false);
  EXPECT_EQ(History(9), (Ints{0, 1, 2, 2, 2}));
}

TEST_F(PropagatingContainerTest, ASuppressedStepSuppressesItsObjectsUntilItIsResumed) {
  bcs.Get("bc06").Suppress(false, false);
  bcs.Get("bc00").Insert("B", kbcC_DisplacementBCState());
  TakeChanges();
  Commands().Add("cmd");
  Update("A B! C D", "B", true);
  EXPECT_EQ(NamesOf(bcs.InvalidKeys()), KeysOf(2));
  EXPECT_EQ(bcs.ConstGet("bc02").suppressionState, SUPPRESSED_STEP);
  EXPECT_EQ(bcs.ConstGet("bc06").suppressionState, SUPPRESSED_BOTH);
  EXPECT_EQ(bcs.ConstGet("bc01").suppressionState, RESUMED);
  EXPECT_EQ(bcs.UnsuppressedSize(), count - 5);
  EXPECT_EQ(changes.size(), std::size_t{5 + count});
  EXPECT_EQ(Refusal([&] { bcs.Get("bc02").Resume(false); }),
            "Cannot resume while the step is still suppressed.  Resume the step first.");

  Update("A B C D", "B", false);
  EXPECT_TRUE(bcs.InvalidKeys().IsEmpty());
  EXPECT_EQ(bcs.ConstGet("bc02").suppressionState, RESUMED);
  EXPECT_EQ(bcs.ConstGet("bc06").suppressionState, SUPPRESSED_ATTRIBUTE);
  EXPECT_EQ(History(2), (Ints{0, 0, 1, 2, 2}));
  // A replacement makes the step's suppression the object's own, whatever it may be.
  Update("A B! C D", "B", true);
  Update("A B:P! C D");
  EXPECT_EQ(NamesOf(bcs.InvalidKeys()), KeysOf(2));
  Update("A B:P C D", "B", false);
  EXPECT_EQ(bcs.ConstGet("bc02").suppressionState, SUPPRESSED_ATTRIBUTE);
  EXPECT_EQ(bcs.ConstGet("bc06").suppressionState, SUPPRESSED_ATTRIBUTE);
}

TEST_F(PropagatingContainerTest, TheSameStepsChangeNothing) {
  kprC_StepList const same = bcs.Procedures();
  Container const before = bcs;
  bcs.UpdateSteps(same, "", false);
  for (cow_String const& key : bcs.Keys()) {
    EXPECT_TRUE(cls_EqualValues(bcs.ConstGet(key), before.ConstGet(key))) << key.CStr();
    // What did not change is shared on.
    EXPECT_TRUE(bcs.ConstGet(key).States().Identical(before.ConstGet(key).States())) << key.CStr();
  }
  EXPECT_TRUE(TakeChanges().empty());
  // What was set on an object meanwhile counts all the same: no flow step takes a displacement that is fixed.
  Update("A B C D:W");
  EXPECT_EQ(History(4), (Ints{1, 2, 2, 2, 2}));
  static_cast<BC&>(bcs.Get("bc04")).fixed = true;
  bcs.UpdateSteps(kprC_StepList(bcs.Procedures()), "", false);
  EXPECT_EQ(History(4), (Ints{1, 2, 2, 2, 6}));
}

TEST_F(PropagatingContainerTest, AClearedStepLosesItsEditsAndObjects) {
  bcs.Get("bc00").Insert("B", kbcC_DisplacementBCState());
  for (int const i : {9, 16, 13}) bcs.Remove(Key(i));
  TakeChanges();
  bcs.ClearStep("B");
  EXPECT_EQ(TakeChanges(), (Names{"Remove bc02", "Remove bc06", "Remove bc10", "Remove bc14", "Remove bc18"}));
  // Only the regions of the object that went last are told.
  EXPECT_TRUE(bcs.DanglingRegions().IsEmpty());
  EXPECT_EQ(bcs.ConstGet("bc00").StateIn("B"), nullptr);
  bcs.ClearStep("no such step");
  EXPECT_TRUE(TakeChanges().empty());
  Update("A B C D E");
  EXPECT_EQ(History(0), (Ints{1, 2, 2, 2, 2, 2}));
}

TEST_F(PropagatingContainerTest, ARefusedInsertLeavesTheMap) {
  Container const before = bcs;
  BC bad = Condition("Initial", "r0");
  kbcC_DisplacementBCState state;
  state.u3 = 1.0;
  bad.Insert("Initial", state);
  EXPECT_EQ(Refusal([&] { bcs.Insert("bc00", bad); }), "Non-zero boundary condition in initial step.");
  EXPECT_EQ(Refusal([&] { bcs.Insert("new", bad); }), "Non-zero boundary condition in initial step.");
  EXPECT_TRUE(cls_EqualValues(bcs, before));
  EXPECT_TRUE(TakeChanges().empty());
  EXPECT_EQ(Refusal([&] { bcs.Get("new"); }), "new");

  EXPECT_TRUE(bcs.Insert("bc00", Condition("C", "r0")));
  EXPECT_EQ(TakeChanges(), (Names{"Remove bc00", "Insert bc00 -99"}));
  EXPECT_EQ(History(0), (Ints{0, 0, 0, 1, 2}));
  EXPECT_TRUE(bcs.Remove("bc00"));
  EXPECT_FALSE(bcs.Remove("bc00"));
  EXPECT_EQ(TakeChanges(), Names{"Remove bc00"});
}

TEST_F(PropagatingContainerTest, NotesTouchedKeysOnceInARow) {
  EXPECT_TRUE(bcs.DeltaList().IsEmpty());
  for (char const* const key : {"x", "x", "y", "", "x"}) bcs.UpdateTimeStamp(key);
  EXPECT_EQ(NamesOf(bcs.DeltaList()), (Names{"x", "y", "x"}));
  double const stamp = bcs.GetTimeStamp();
  bcs.Get("bc03");
  EXPECT_EQ(NamesOf(bcs.DeltaList()).back(), "bc03");
  EXPECT_GE(bcs.GetTimeStamp(), stamp);
  bcs.ResetDeltaList();
  EXPECT_TRUE(bcs.DeltaList().IsEmpty());

  kprC_PropagatingContainerIT<kbcC_BC> walk(bcs);
  int visited = 0;
  for (walk.First(); !walk.IsDone(); walk.Next()) {
    EXPECT_EQ(walk.CurrentKey(), Key(visited++));
    bcs.Remove(walk.CurrentKey());
    EXPECT_EQ(walk.CurrentValue().region.name.CStr()[0], 'r');
  }
  EXPECT_EQ(visited, count);
  EXPECT_TRUE(bcs.IsEmpty());
}

TEST_F(PropagatingContainerTest, ADeepCopySharesNothing) {
  bcs.UpdateTimeStamp("x");
  std::unique_ptr<Container> const shallow(bcs.Copy());
  std::unique_ptr<Container> const deep(bcs.DeepCopy());
  EXPECT_TRUE(cls_EqualValues(*deep, bcs));
  EXPECT_EQ(NamesOf(deep->DeltaList()), Names{"x"});
  EXPECT_EQ(deep->GetTimeStamp(), bcs.GetTimeStamp());
  EXPECT_EQ(deep->Uid(), bcs.Uid());
  for (cow_String const& key : bcs.Keys()) {
    kbcC_BC const& original = bcs.ConstGet(key);
    kbcC_BC const& copy = deep->ConstGet(key);
    EXPECT_EQ(&shallow->ConstGet(key), &original);
    EXPECT_NE(&copy, &original);
    for (int i = 0; i < original.States().Length(); ++i) {
      EXPECT_NE(&copy.States()[i], &original.States()[i]);
      kbcC_BCState const* const state = original.States()[i].state.GetPtr();
      EXPECT_TRUE(state == nullptr || copy.States()[i].state.GetPtr() != state);
      // Within the copy the objects share the steps of its own list.
      EXPECT_EQ(copy.States()[i].procedure.GetPtr(), deep->Procedures()[i].procedure.GetPtr());
      EXPECT_TRUE(i == 0 || deep->Procedures()[i].procedure.GetPtr() != bcs.Procedures()[i].procedure.GetPtr());
    }
  }
  bcs.UpdateSteps(Steps("A B C"), "", false);
  EXPECT_EQ(Statuses(shallow->ConstGet("bc01")), (Ints{0, 1, 2, 2, 2}));
  EXPECT_EQ(Statuses(deep->ConstGet("bc01")), (Ints{0, 1, 2, 2, 2}));
}

}  // namespace
