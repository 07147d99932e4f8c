#include <functional>

#include "../StepPlan.h"
#include "kbcC_AccelerationBC.h"
#include "kbcC_AccelerationBaseMotionBC.h"
#include "kbcC_ConnDisplacementBC.h"
#include "kbcC_ConnVelocityBC.h"
#include "kbcC_DisplacementBC.h"
#include "kbcC_VelocityBC.h"

namespace {

using namespace over_steps;

auto* const environment = ::testing::AddGlobalTestEnvironment(new LibraryEnvironment());

using BC = kbcC_DisplacementBC;
using State = kbcC_DisplacementBCState;
using Ints = std::vector<int>;

auto& Words = WordsOf<BC>;
auto& WithU1 = WithValue<BC>;

// ---- statuses and states over the steps

TEST(BoundaryConditionTest, EveryEditReachesTheStepsBehindIt) {
  Follow(Created<BC>("A", "A B C D"), {
    {"created", nothing, {0, 1, 2, 2, 2}},
    {"edited in C", Edited("C"), {0, 1, 2, 3, 2}},
    {"the edit is inherited", Has({{"B", 0.5}, {"D", 2.0}}), {0, 1, 2, 3, 2}},
    {"deactivated in D", Deactivated("D"), {0, 1, 2, 3, 4}},
    {"reset in D", Reset("D"), {0, 1, 2, 3, 2}},
    {"moved from A to B", Moved("A", "B"), {0, 0, 1, 3, 2}},
    {"reset where nothing was said", Reset("D"), {0, 0, 1, 3, 2}},
    {"the edit dropped", [](BC& bc) { EXPECT_TRUE(bc.Remove("C")); }, {0, 0, 1, 2, 2}},
    {"moved back to A", Moved("B", "A"), {0, 1, 2, 2, 2}},
    {"deactivated in B", Deactivated("B"), {0, 1, 4, 5, 5}},
    {"and again", Deactivated("B"), {0, 1, 4, 5, 5}},
    {"and where it is not there", Both(Deactivated("D"), Deactivated("Initial")), {0, 1, 4, 5, 5}},
    {"a step put before B", [](BC& bc) { bc.InsertStep(2, Steps("X")[1]); }, {0, 1, 2, 4, 5, 5}},
    {"B renamed", [](BC& bc) { bc.RenameStep("B", "Y"); }, {0, 1, 2, 4, 5, 5}},
    {"and removed", [](BC& bc) { bc.RemoveStep("Y"); }, {0, 1, 2, 2, 2}},
    {"no such step", [](BC& bc) { EXPECT_FALSE(bc.Insert("Z", WithU1(1.0))); bc.RemoveStep("Z"); }, {0, 1, 2, 2, 2}},
  });
}

TEST(BoundaryConditionTest, PerturbationStepsLeaveNoTrace) {
  Follow(Created<BC>("A", "A B C:F D"), {
    {"a frequency step", Has({{"C", 0.0}, {"D", 0.5}}), {0, 1, 2, 9, 2}},
    {"modified from the base", Edited("C", 3.0), {0, 1, 2, 10, 2}},
    {"for that step alone", Has({{"C", 3.0}, {"D", 0.5}}), {0, 1, 2, 10, 2}},
    {"deactivated from the base", Deactivated("C"), {0, 1, 2, 11, 2}},
    {"before a modal step", Replanned("A B C:F D:M E"), {0, 1, 2, 11, 5, 2}},
    {"the next frequencies hold it", Replanned("A B C:F D:F E:M"), {0, 1, 2, 11, 9, 12}},
  });
  Follow(Created<BC>("A", "A B C D:M"), {
    {"a modal step", Has({{"C", 0.5}, {"D", none}}), {0, 1, 2, 2, 12}},
    {"an edit there", Edited("D", 1.0), {0, 1, 2, 2, 12}},
    {"is dropped", Has({{"C", 0.5}, {"D", none}}), {0, 1, 2, 2, 12}},
  });
  Follow(Created<BC>("A", "A B C:F D:P E:M F"), {
    {"one after the other", Edited("C", 1.0), {0, 1, 2, 10, 9, 12, 2}},
    {"and all from the base", Has({{"C", 1.0}, {"D", 0.0}, {"F", 0.5}}), {0, 1, 2, 10, 9, 12, 2}},
    {"deactivated before", Deactivated("B"), {0, 1, 4, 5, 5, 5, 5}},
  });
  // What a perturbation step creates reaches the modal steps on its frequencies, and no other.
  EXPECT_EQ(Statuses(Created<BC>("B", "A B:F C:M D:F! E:M F G:M")), (Ints{0, 0, 1, 12, 7, 12, 7, 7}));
  EXPECT_EQ(Statuses(Created<BC>("B", "A B:P C:M D")), (Ints{0, 0, 1, 7, 7}));
}

TEST(BoundaryConditionTest, StepsThatDoNotTakeTheTypePassItOn) {
  BC bc = Created<BC>("A", "A B:H C D");
  EXPECT_EQ(Statuses(bc), (Ints{0, 1, 6, 2, 2}));
  EXPECT_EQ(ValueIn(bc, "C"), 0.5);
  // A deactivation in a step that ceases to take the type is honoured by the next that does.
  bc.Initialize(Steps("A B C D"));
  bc.Deactivate("B");
  bc.Initialize(Steps("A B:H C! D:H E F"));
  EXPECT_EQ(Statuses(bc), (Ints{0, 1, 6, 4, 6, 4, 5}));
  EXPECT_TRUE(bc.StateIn("E")->deactivate);
  bc.Sync();
  EXPECT_EQ(Statuses(bc), (Ints{0, 1, 6, 4, 6, 4, 5}));
}

TEST(BoundaryConditionTest, SuppressedStepsShowTheirStatusOnly) {
  BC bc = Created<BC>("A", "A B C D");
  bc.Insert("B", WithU1(1.0));
  bc.Deactivate("C");
  bc.Initialize(Steps("A B! C! D"));
  EXPECT_EQ(Statuses(bc), (Ints{0, 1, 3, 4, 2}));
  EXPECT_EQ(ValueIn(bc, "D"), 0.5);
  bc.Initialize(Steps("A! B C D"));
  EXPECT_EQ(Statuses(bc), (Ints{0, 1, 3, 4, 5}));
}

// ---- refusals

TEST(BoundaryConditionTest, RefusesDeactivationsAndResets) {
  ExpectRefusedEdits<BC>({
      {"unknown step", "A B", nothing, Deactivated("Z"), 3},
      {"step without the type", "A B:H!", nothing, Deactivated("B"), 9},
      {"suppressed step", "A B!", nothing, Deactivated("B"), 64},
      {"deactivated twice", "A B", Deactivated("B"), Deactivated("B"), 0},
      {"create step", "A B", nothing, Reset("A"), 19},
      {"create step, suppressed", "A! B", nothing, Reset("A"), 19},
      {"step before", "Z A", nothing, Reset("Z"), 58},
      {"modified step", "A B!", Edited("B"), Reset("B"), 58},
      {"inactive step", "A B C", Deactivated("B"), Reset("C"), 58},
      {"base modified", "A B:F", Edited("B"), Reset("B"), 58},
      {"base deactivated", "A B:F", Deactivated("B"), Reset("B"), 0},
      {"deactivated, suppressed", "A B", Both(Deactivated("B"), Replanned("A B!")), Reset("B"), 65},
      {"propagated, suppressed", "A B!", nothing, Reset("B"), 65},
      {"replacing the create step", "A B", nothing, [](BC& bc) { bc.ReplaceStep("A"); }, 19},
      {"removing the create step", "A B", nothing, [](BC& bc) { bc.Remove("B"); bc.RemoveStep("A"); }, 0},
      {"removing what alone holds a state", "A", nothing, [](BC& bc) { bc.RemoveStep("A"); }, 3},
  });
  EXPECT_EQ(Refusal([] { Created<BC>("A", "A").Reset("Z"); }), "Z");
}

TEST(BoundaryConditionTest, RefusesMovesInOrder) {
  ExpectRefusedEdits<BC>({
      {"same step", "A! B:N", nothing, Moved("A", "A"), 0},
      {"onto an edit", "A B C D", Edited("D"), Moved("A", "D"), 28},
      {"across an edit", "A B C D", Both(Edited("B"), Edited("D")), Moved("A", "D"), 27},
      {"across an edit in a suppressed step", "A B C", Both(Edited("B"), Replanned("A B! C")), Moved("A", "C"), 0},
      {"backward onto the creation", "A B C D", Edited("C"), Moved("C", "A"), 28},
      {"of a deactivation", "A B C", Deactivated("B"), Moved("B", "C"), 17},
      {"of what was inherited", "A B! C:P", nothing, Moved("B", "C"), 18},
      {"out of a perturbation", "A B C:F", Edited("C"), Moved("C", "B"), 38},
      {"into a flow step", "A! B:W!", nothing, Moved("A", "B"), 105},
      {"into a perturbation", "A! B:F!", nothing, Moved("A", "B"), 39},
      {"into modal dynamics", "A B:M", nothing, Moved("A", "B"), 39},
      {"into an anneal step", "A! B:N!", nothing, Moved("A", "B"), 29},
      {"into a step without the type", "A! B:H!", nothing, Moved("A", "B"), 44},
      {"into a suppressed step", "A! B!", nothing, Moved("A", "B"), 62},
      {"out of a suppressed step", "A! B", nothing, Moved("A", "B"), 63},
      {"non-zero into the initial step", "A B", nothing, Moved("A", "Initial"), 6},
  });
  // Out of a flow step: the edit was made before the step became one.
  BC inFlow = Created<BC>("A", "A B C");
  inFlow.Insert("B", WithU1(1.0));
  inFlow.Initialize(Steps("A B:W C"));
  EXPECT_EQ(Refusal([&] { inFlow.Move("B", "C"); }), Words(105));

  // A refusal by the two steps themselves comes after the states between are dropped; one of a step between before.
  BC bc = Created<BC>("A", "A B C D:N");
  bc.Insert("B", WithU1(1.0));
  EXPECT_EQ(Refusal([&] { bc.Move("A", "D"); }), Words(27));
  EXPECT_NE(bc.StateIn("C"), nullptr);
  bc.Reset("C");
  bc.Remove("B");
  EXPECT_EQ(Refusal([&] { bc.Move("A", "D"); }), Words(29));
  EXPECT_EQ(bc.StateIn("B"), nullptr);
  EXPECT_EQ(bc.StateIn("C"), nullptr);
  EXPECT_NE(bc.StateIn("A"), nullptr);
}

TEST(BoundaryConditionTest, RefusesCopiesAndLoadCases) {
  ExpectRefusedEdits<BC>({
      {"suppressed object to its own step", "A! B", SuppressByUser, Copied("A"), 0},
      {"suppressed object elsewhere", "A B!", SuppressByUser, Copied("B"), 78},
      {"to a suppressed step", "A B:H!", nothing, Copied("B"), 79},
      {"to an unknown step", "A B", nothing, Copied("Z"), 79},
      {"to a step without the type", "A B:H", nothing, Copied("B"), 53},
      {"to a modal step", "A B:M", nothing, Copied("B"), 53},
      {"to the initial step", "A B", nothing, Copied("Initial"), 0},
      {"load case", "A B", nothing, InLoadCase("B"), 0},
      {"load case before creation", "Z A", nothing, InLoadCase("Z"), 48},
      {"load case of a suppressed object", "A B", SuppressByUser, InLoadCase("A"), 48},
  });
  BC bc = Created<BC>("A", "A B:F");
  auto const copy = bc.CopiedToStep("B");
  EXPECT_EQ(Statuses(*copy), Ints{1});
  EXPECT_EQ(static_cast<State const*>(copy->StateIn("B"))->u1.State(), UNSET);
  EXPECT_EQ(ValueIn(bc, "A"), 0.5);
  EXPECT_NE(copy->Uid(), bc.Uid());

  kbcC_ConnVelocityBC connector;
  connector.region = rgnC_Region("wires");
  connector.Insert("A", kbcC_ConnVelocityBCState());
  connector.Initialize(Steps("A"));
  EXPECT_EQ(Refusal([&] { connector.ValidInALoadCase("A", true); }), Words(50));
  EXPECT_FALSE(connector.ValidInALoadCase("A", false));
}

TEST(BoundaryConditionTest, KnowsItsStatusesOnly) {
  BC const bc = Created<BC>("A", "A B");
  ExpectPredicates(bc, {0, 1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12}, 47,
                   {{1, 2, 3, 9, 10}, {2, 9}, {12}, {1, 3, 4, 10, 11}, {1, 3, 4, 10}, {}});
  ExpectPropagatorErrors(bc, {3, 10, 11, 55, 56, 57, 57});
  EXPECT_EQ(Refusal([] { BC().Sync(); }), Words(3));
  EXPECT_NE(Refusal([] { BC().Insert("A", kbcC_VelocityBCState()); }), passes);
  EXPECT_EQ(Refusal([] { BC().CreateStepName(); }), "\"All states are empty\" == 0");
  EXPECT_EQ(Refusal([&] { bc.Status("Z"); }), "Z");
  EXPECT_FALSE(bc.IsEditable("Z"));
  EXPECT_EQ(bc.GetEditableStepName("Initial"), "A");
  EXPECT_EQ(Refusal([&] { bc.GetU1Real("Initial"); }), "The boundary condition is STATUS_NONE in step: Initial.");
}

// ---- one attribute

TEST(PropagatingAttributeTest, FollowsItsStates) {
  using Attr = mdl_PropAttr<double>;
  struct Row {
    char const* name;
    mdl_PropAttributeStateEnm from;
    std::function<void(Attr&)> act;
    mdl_PropAttributeStateEnm to;
    double value;
  };
  auto const modify = [](mdl_PropAttributeStateEnm state) {
    return [state](Attr& a) {
      Attr other(7.0);
      other = state;
      a.Modify(other);
    };
  };
  Row const rows[] = {
      {"assigned", FREED, [](Attr& a) { a = 7.0; }, SET, 7.0},
      {"only looked at for writing", PROPAGATED, [](Attr& a) { a.Get(); }, SET, 5.0},
      {"freed", SET, [](Attr& a) { a = FREED; }, FREED, 0.0},
      {"unset", PROPAGATED, [](Attr& a) { a = UNSET; }, UNSET, 0.0},
      {"state alone", UNSET, [](Attr& a) { a = PROPAGATED; }, PROPAGATED, 5.0},
      {"forced", SET, [](Attr& a) { a.ForceState(UNSET); }, UNSET, 5.0},
      {"zeroed", SET, [](Attr& a) { a.Zero(); }, SET, 0.0},
      {"propagated twice", SET, [](Attr& a) { a.Propagate(); a.Propagate(); }, PROPAGATED, 5.0},
      {"freed before", FREED, [](Attr& a) { a.Propagate(); }, UNSET, 5.0},
      {"an edit that says nothing", PROPAGATED, modify(PROPAGATED), PROPAGATED, 5.0},
      {"an edit that unsets", PROPAGATED, modify(UNSET), PROPAGATED, 5.0},
      {"an edit that frees", PROPAGATED, modify(FREED), FREED, 0.0},
      {"an edit that gives a value", FREED, modify(SET), SET, 7.0},
  };
  for (Row const& row : rows) {
    Attr attribute(5.0);
    attribute.ForceState(row.from);
    row.act(attribute);
    EXPECT_EQ(attribute.State(), row.to) << row.name;
    EXPECT_EQ(attribute.ConstGet(), row.value) << row.name;
    EXPECT_EQ(attribute.IsActive(), row.to == SET || row.to == PROPAGATED) << row.name;
    EXPECT_NE(attribute.IsActive(), attribute.IsFree()) << row.name;
  }
  Attr constructed(5.0);
  EXPECT_TRUE(constructed == 5.0 && constructed.IsFree());
  Attr twin = constructed;
  twin.NewUid();
  EXPECT_TRUE(twin == constructed);
  twin.ForceState(SET);
  EXPECT_FALSE(twin == constructed);
}

TEST(PropagatingAttributeTest, ScriptsSetStatesThatTheStepAllows) {
  struct Row {
    mdl_PropAttributeStateEnm wish;
    bool createStep;
    bool allowed;
  };
  for (Row const& row : {Row{SET, true, true}, {SET, false, true}, {PROPAGATED, true, true}, {PROPAGATED, false, true},
                         {UNSET, true, true}, {UNSET, false, false}, {FREED, true, false}, {FREED, false, true}}) {
    mdl_PropAttr<double> attribute;
    attribute = 5.0;
    std::string const words = Refusal([&] { attribute.SetStatus("ur2", row.wish, row.createStep); });
    EXPECT_EQ(words, row.allowed ? passes : "Invalid propagation status for 'ur2' attribute.") << row.wish;
    bool const untouched = !row.allowed || row.wish == PROPAGATED;
    EXPECT_EQ(attribute.ConstGet(), untouched ? 5.0 : 0.0) << row.wish;
    EXPECT_EQ(attribute.State(), untouched ? SET : row.wish) << row.wish;
  }
}

// ---- the members of the family

TEST(ComponentBCTest, ProceduresTakeValuesAway) {
  State state = WithU1(1.0);
  state.amplitude = cow_String("ramp");
  state.cU2 = omi_complex(omi_complex::POLAR_DEGREES, 2.0, 180.0);
  State changed = state;
  changed.ChangeProcedureType(kprC_Procedure::SteadyStateDirect);
  EXPECT_TRUE(cls_EqualValues(changed, state));
  changed.ChangeProcedureType(kprC_Procedure::Static);
  EXPECT_EQ(changed.cU2, omi_complex(-2.0, 0.0));
  EXPECT_TRUE(changed.u1 == 1.0 && changed.amplitude == SET);
  changed.ChangeProcedureType(kprC_Procedure::Frequency);
  EXPECT_TRUE(cls_EqualValues(changed, State()));
}

TEST(ComponentBCTest, OnlyComplexProceduresHaveImaginaryParts) {
  State state = WithU1(1.0);
  state.cU1 = omi_complex(omi_complex::POLAR_DEGREES, 3.0, 90.0);
  BC bc;
  bc.Insert("A", state);
  bc.Initialize(Steps("A B:D"));
  EXPECT_EQ(bc.GetU1Real("A"), 1.0);
  EXPECT_EQ(bc.GetU1Imag("A"), -1.7976931348623157e308);
  // The perturbation starts from zero.
  EXPECT_EQ(bc.GetU1Imag("B"), 0.0);
  bc.Insert("B", state);
  EXPECT_EQ(bc.GetU1Real("B"), 0.0);
  EXPECT_EQ(bc.GetU1Imag("B"), 3.0);
  EXPECT_EQ(bc.GetU1State("B"), SET);
  EXPECT_EQ(bc.GetU2State("B"), UNSET);
}

TEST(ComponentBCTest, EditsLayOverWhatWasInherited) {
  State inherited = WithU1(1.0);
  inherited.cU2 = omi_complex(1.0, 1.0);
  inherited.amplitude = cow_String("ramp");
  inherited.Propagate();
  State edit;
  edit.u2 = 2.0;
  edit.amplitude = cow_String("step");
  State result = inherited;
  result.Modify(edit);
  EXPECT_TRUE(result.u1 == 1.0 && result.u2 == SET && result.cU2.IsZero() && result.amplitude == cow_String("step"));
  // An edit that deactivates leaves the family's amplitude alone, not the components.
  edit.deactivate = true;
  result = inherited;
  result.Modify(edit);
  EXPECT_TRUE(result.u2 == SET && result.amplitude == cow_String("ramp") && result.deactivate);

  State complex;
  complex.cU3 = omi_complex(1.0, 0.0);
  EXPECT_FALSE(complex.IsModified());
  complex.cUR3 = omi_complex(1.0, 0.0);
  EXPECT_TRUE(complex.IsModified());
}

TEST(ComponentBCTest, ValidatesEachMember) {
  EXPECT_EQ(Refusal([] { Created<BC>("Initial", "A", 0.0); }), passes);
  EXPECT_EQ(Refusal([] { Created<BC>("Initial", "A", 0.5); }), Words(6));
  BC fixed = Created<BC>("A", "A B", 0.0);
  fixed.fixed = true;
  BC suppressed = fixed;
  EXPECT_EQ(Refusal([&] { fixed.Insert("B", WithU1(1.0)); }), Words(16));
  suppressed.Initialize(Steps("A B!"));
  EXPECT_EQ(Refusal([&] { suppressed.Insert("B", WithU1(1.0)); }), passes);
  BC field = Created<BC>("A", "A");
  field.distribution = BC::FIELD;
  EXPECT_EQ(Refusal([&] { field.AssertValid(); }), Words(60));
  field.Suppress(false, false);
  EXPECT_EQ(Refusal([&] { field.AssertValid(); }), passes);

  // Velocities look for discrete fields before all else, accelerations after.
  auto const discrete = [](auto bc, auto state) {
    bc.Insert("A", state);
    bc.Initialize(Steps("A"));
    bc.distribution = kbcC_BC::DISCRETE_FIELD;
    std::string words = Refusal([&] { bc.AssertValid(); });
    bc.fieldName = "wind";
    return words + "\n" + Refusal([&] { bc.AssertValid(); });
  };
  std::string const ofVelocity = "Discrete Fields are not supported as Velocity BC distributions.";
  EXPECT_EQ(discrete(kbcC_VelocityBC(), kbcC_VelocityBCState()), ofVelocity + "\n" + ofVelocity);
  kbcC_AccelerationBC acceleration;
  acceleration.Insert("A", kbcC_AccelerationBCState());
  EXPECT_EQ(Refusal([&] { acceleration.Initialize(Steps("A")); }), Words(45));
  acceleration.Initialize(Steps("A:E"));
  acceleration.distribution = kbcC_BC::DISCRETE_FIELD;
  EXPECT_EQ(Refusal([&] { acceleration.AssertValid(); }), Words(60));
  acceleration.fieldName = "wind";
  EXPECT_EQ(Refusal([&] { acceleration.AssertValid(); }),
            "Discrete Fields are not supported as Acceleration BC distributions.");
}

TEST(ComponentBCTest, ConnectorsNeedAPlaceAndTheirComponents) {
  kbcC_ConnDisplacementBC bc;
  kbcC_ConnDisplacementBCState state;
  state.u2 = 1.0;
  state.ur2 = 0.0;
  state.corm2 = state.corm3 = state.corm5 = false;
  bc.Insert("A", state);
  std::string const unavailable = "Unavailable connector components have been specified (CORM: corm2, corm5).";
  auto const words = [&] { return Refusal([&] { bc.AssertValid(); }); };
  EXPECT_EQ(Refusal([&] { bc.Initialize(Steps("A")); }), Words(88));
  bc.fastenerName = "bolts";
  EXPECT_EQ(words(), Words(88));
  bc.region = rgnC_Region("wires");
  EXPECT_EQ(words(), Words(89));
  bc.region = rgnC_Region();
  bc.fastenerSetName = "left";
  EXPECT_EQ(words(), unavailable);
  EXPECT_EQ(Refusal([&] { bc.Initialize(Steps("A!")); }), passes);
  bc.fixed = true;
  EXPECT_EQ(Refusal([&] { bc.Initialize(Steps("A")); }), unavailable);
  // A complex value counts only where the procedure works with it.
  kbcC_ConnDisplacementBCState complex;
  complex.cU2 = omi_complex(1.0, 0.0);
  complex.corm2 = false;
  EXPECT_TRUE(complex.UnavailableComponents(kprC_Procedure::Static).IsEmpty());
  EXPECT_EQ(complex.UnavailableComponents(kprC_Procedure::SteadyStateDirect), "corm2");
}

TEST(BaseMotionTest, ProceduresTakeTheirParts) {
  using Motion = kbcC_AccelerationBaseMotionBC;
  using MotionState = kbcC_AccelerationBaseMotionBCState;
  struct Row {
    char procedure;
    std::vector<std::pair<int, std::function<void(Motion&, MotionState&)>>> repairs;
  };
  auto const name = [](Motion&, MotionState& s) { s.amplitude = cow_String("quake"); };
  auto const unname = [](Motion&, MotionState& s) { s.amplitude = UNSET; };
  auto const real = [](Motion& m, MotionState&) { m.useComplex = false; };
  auto const uncorrelate = [](Motion& m, MotionState&) { m.correlation = cls_xp1DArrayListString(); };
  auto const centre = [](Motion& m, MotionState&) { m.centerOfRotation = Motion().centerOfRotation; };
  auto const primary = [](Motion& m, MotionState&) { m.secondaryBase = ""; };
  // Everything at once; each repair uncovers the next fault.
  Row const rows[] = {{'M', {{98, name}, {96, real}, {100, uncorrelate}}},
                      {'R', {{97, unname}, {96, real}, {99, centre}, {101, primary}}},
                      {'S', {{98, name}, {100, uncorrelate}}}};
  for (Row const& row : rows) {
    Motion motion;
    motion.useComplex = true;
    motion.correlation = {cow_String("psd")};
    motion.centerOfRotation = {0.0, 0.0, 1.0};
    motion.secondaryBase = "wall";
    MotionState state;
    std::string const plan = std::string("A:") + row.procedure;
    if (row.procedure == 'R') name(motion, state);
    for (auto const& [error, repair] : row.repairs) {
      Motion whole = motion;
      whole.Insert("A", state);
      EXPECT_EQ(Refusal([&] { whole.Initialize(Steps(plan)); }), Words(error)) << plan;
      EXPECT_EQ(Refusal([&] { whole.Initialize(Steps(plan + "!")); }), Words(error)) << "suppressed or not " << plan;
      repair(motion, state);
    }
    motion.distribution = kbcC_BC::DISCRETE_FIELD;
    motion.Insert("A", state);
    EXPECT_EQ(Refusal([&] { motion.Initialize(Steps(plan)); }),
              "Discrete Fields are not supported as BaseMotion BC distributions.");
    motion.distribution = kbcC_BC::UNIFORM;
    EXPECT_EQ(Refusal([&] { motion.Initialize(Steps(plan)); }), passes) << plan;
  }
}

}  // namespace
