#include <map>
#include <set>

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
      if (auto const* const name = std::get_if<cow_String>(&part)) text += (text.empty() ? "" : " ") + std::string(name->CStr());
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

/// Twenty conditions "bc00" to "bc19", created in turn in Initial, A, B and C, on the seven regions "r0" to "r6" in turn.
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
  void TearDown() override { SetUpHistories(); }
  static void SetUpHistories() {
    Changes().Clear();
    Commands().Clear();
  }

  static cow_String Key(int i) { return cow_String((i < 10 ? "bc0" : "bc") + std::to_string(i)); }
  /// Keys of the conditions created in one of the four steps, with something before each.
  static Names KeysOf(int createStep, std::string const& before = "") {
    Names keys;
    for (int i = createStep; i < count; i += 4) keys.push_back(before + Key(i).CStr());
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
  Update("D");
  EXPECT_EQ(bcs.Size(), 4);
  auto const all = bcs.DanglingRegions();
  EXPECT_EQ(std::set<std::string>(NamesOf(all).size() ? NamesOf(all).begin() : Names().begin(), Names().end()).size(), 0u);
}

}  // namespace
