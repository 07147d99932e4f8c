#include <functional>
#include <set>

#include "../StepPlan.h"
#include "kloC_BodyForce.h"
#include "kloC_ConcentratedForce.h"
#include "kloC_ConnectorForce.h"
#include "kloC_Pressure.h"
#include "kloC_SurfaceHeatFlux.h"
#include "nex_Exception.h"

namespace {

using namespace over_steps;

auto* const environment = ::testing::AddGlobalTestEnvironment(new LibraryEnvironment());

using Load = kloC_ConcentratedForce;
using Ints = std::vector<int>;

auto& Words = WordsOf<Load>;
auto& WithC1 = WithValue<Load>;

// ---- statuses and states over the steps

TEST(LoadTest, EveryEditReachesTheStepsBehindIt) {
  Follow(Created<Load>("A", "A B C D"), {
    {"created", nothing, {0, 1, 2, 2, 2}},
    {"edited in C", Edited("C"), {0, 1, 2, 3, 2}},
    {"deactivated in D", Deactivated("D"), {0, 1, 2, 3, 4}},
    {"reset in D", Reset("D"), {0, 1, 2, 3, 2}},
    {"moved from A to B", Moved("A", "B"), {0, 0, 1, 3, 2}},
    {"the edit is inherited", Has({{"A", none}, {"B", 0.5}, {"D", 2.0}}), {0, 0, 1, 3, 2}},
    {"deactivated in C", Deactivated("C"), {0, 0, 1, 4, 5}},
    {"and where it is not there", Both(Deactivated("A"), Deactivated("D")), {0, 0, 1, 4, 5}},
  });
}

TEST(LoadTest, PerturbationStepsBuildInWhatIsActive) {
  Follow(Created<Load>("A", "A B C:P D:M E"), {
    {"no state there, and the base behind it", Has({{"C", none}, {"D", none}, {"E", 0.5}}), {0, 1, 2, 8, 8, 2}},
    {"an edit there", Edited("C", 3.0), {0, 1, 2, 8, 8, 2}},
    {"is dropped", Has({{"C", none}, {"E", 0.5}}), {0, 1, 2, 8, 8, 2}},
    {"no menu of frequencies", Replanned("A B C:F D:M E"), {0, 1, 2, 6, 8, 2}},
    {"deactivated before", Deactivated("B"), {0, 1, 4, 6, 5, 5}},
  });
  // What a perturbation step creates is for that step alone, and no frequency step carries it on.
  EXPECT_EQ(Statuses(Created<Load>("B", "A B:P C:M D")), (Ints{0, 0, 1, 7, 7}));

  Load const load = Created<Load>("A", "A B:P C!");
  EXPECT_FALSE(load.IsEditable("B"));
  EXPECT_FALSE(load.HasStep("B"));
  EXPECT_TRUE(load.IsEditable("C"));
  EXPECT_FALSE(load.IsEditable("Z"));
  EXPECT_EQ(load.GetEditableStepName("B"), "A");
}

TEST(LoadTest, KnowsItsStatusesOnly) {
  Load const load = Created<Load>("A", "A B");
  ExpectPredicates(load, {0, 1, 2, 3, 4, 5, 6, 7, 8}, 47, {{1, 2, 3, 8}, {2}, {8}, {1, 3, 4}, {1, 3, 4}, {}});
  ExpectPropagatorErrors(load, {31, 7, 8, 61, 62, 63, 63});
  kloC_LoadPropagator propagator(load, load.States());
  EXPECT_FALSE(propagator.CheckFrequency(static_cast<int>(kprC_Procedure::Frequency)));
}

// ---- refusals

auto Checked(char const* step) {
  return [step](Load& load) { load.CheckStep(step); };
}

TEST(LoadTest, RefusesInOrder) {
  ExpectRefusedEdits<Load>({
      {"deactivation in an unknown step", "A B", nothing, Deactivated("Z"), 31},
      {"of what is built in", "A B:P!", nothing, Deactivated("B"), 8},
      {"in a step without the type", "A B:H!", nothing, Deactivated("B"), 9},
      {"in a suppressed step", "A B!", nothing, Deactivated("B"), 74},
      {"twice", "A B", Deactivated("B"), Deactivated("B"), 0},
      {"a step that deactivates becomes a perturbation, which holds it on", "A B", Deactivated("B"), Replanned("A B:P"), 0},
      {"reset of the creation", "A! B", nothing, Reset("A"), 15},
      {"of a modification", "A B!", Edited("B"), Reset("B"), 67},
      {"in a suppressed step", "A B", Both(Deactivated("B"), Replanned("A B!")), Reset("B"), 75},
      {"of what is built in", "A B:P", nothing, Reset("B"), 0},
      {"replacing the create step", "A B", nothing, [](Load& load) { load.ReplaceStep("A"); }, 15},
      {"move to the same step", "A! B:N", nothing, Moved("A", "A"), 0},
      {"onto an edit", "A B C D", Edited("D"), Moved("A", "D"), 23},
      {"across an edit", "A B C D", Both(Edited("B"), Edited("D")), Moved("A", "D"), 22},
      {"of a deactivation", "A B C", Deactivated("B"), Moved("B", "C"), 13},
      {"of what was inherited", "A B! C:P", nothing, Moved("B", "C"), 14},
      {"out of a suppressed step into a perturbation", "A! B:P!", nothing, Moved("A", "B"), 73},
      {"into a flow step", "A B:W!", nothing, Moved("A", "B"), 82},
      {"into a perturbation", "A B:P!", nothing, Moved("A", "B"), 25},
      {"into an anneal step", "A B:N!", nothing, Moved("A", "B"), 26},
      {"into a step without the type", "A B:H!", nothing, Moved("A", "B"), 33},
      {"into a suppressed step", "A B!", nothing, Moved("A", "B"), 72},
      {"into the initial step", "A B", nothing, Moved("A", "Initial"), 2},
      {"suppressed load copied to its own step", "A! B", SuppressByUser, Copied("A"), 0},
      {"copied elsewhere", "A B!", SuppressByUser, Copied("B"), 79},
      {"copied to a suppressed step", "A B:H!", nothing, Copied("B"), 80},
      {"copied to a step without the type", "A B:H", nothing, Copied("B"), 59},
      {"copied to a perturbation", "A B:P", nothing, Copied("B"), 0},
      {"copied to the initial step", "A B", nothing, Copied("Initial"), 59},
      {"create step that ceases to take the type", "A B", nothing, Replanned("A:H B"), 34},
      {"create step that becomes an anneal step", "A B", nothing, Replanned("A:N B"), 18},
      {"step in which it is inactive", "A B", Deactivated("B"), Checked("B"), 32},
      {"step in which it is built in", "A B:P", nothing, Checked("B"), 32},
      {"load case", "A:P", nothing, InLoadCase("A"), 0},
      {"load case of a modal step", "A:M", nothing, InLoadCase("A"), 0},
      {"load case before creation", "Z A", nothing, InLoadCase("Z"), 52},
      {"zero magnitude", "A", nothing, Edited("A", 0.0), 41},
      {"zero magnitude later", "A B", nothing, Edited("B", 0.0), 0},
      {"field without a name", "A", nothing,
       [](Load& load) { load.distribution = kloC_DistributionEnm::FIELD, load.AssertValid(); }, 69},
  });
  // Out of a perturbation, and out of a flow step that was a general one when the edit was made.
  EXPECT_EQ(Refusal([] { Created<Load>("B", "A B:P C").Move("B", "A"); }), Words(24));
  auto inFlow = Created<kloC_BodyForce>("A", "A:W B");
  EXPECT_EQ(Refusal([&] { inFlow.Move("A", "B"); }), Words(82));
  inFlow.distType = kloC_DistributionEnm::USER_DEFINED;
  EXPECT_EQ(Refusal([&] { inFlow.AssertValid(); }), Words(76));
  EXPECT_EQ(Refusal([] { Load().Sync(); }), Words(31));
}

TEST(LoadTest, NamesAreLookedUpBeforeAMoveChangesAnything) {
  Load load = Created<Load>("A", "A B C D:H");
  Load const before = load;
  EXPECT_EQ(Refusal([&] { load.Move("A", "Z"); }), "Z");
  EXPECT_EQ(Refusal([&] { load.Move("Z", "A"); }), "Z");
  EXPECT_TRUE(cls_EqualValues(load, before));
  // A refusal by the destination comes after the states between are dropped.
  EXPECT_EQ(Refusal([&] { load.Move("A", "D"); }), Words(33));
  EXPECT_EQ(load.StateIn("B"), nullptr);
}

TEST(LoadTest, LoadCasesTakeMechanicalLoadsButNoConnectors) {
  auto connector = Created<kloC_ConnectorForce>("A", "A");
  EXPECT_EQ(Refusal([&] { connector.ValidInALoadCase("A", true); }), Words(54));
  auto flux = Created<kloC_SurfaceHeatFlux>("A", "A:H");
  EXPECT_EQ(Refusal([&] { flux.ValidInALoadCase("A", true); }), Words(53));
  EXPECT_FALSE(flux.ValidInALoadCase("A", false));
}

TEST(LoadTest, TellsRefusedCommandsFromFaults) {
  using Command = nex_CmdException<cow_String, 1>;
  using Fault = nex_PrimException<atr_String, 1>;
  EXPECT_THROW(kloC_Refuse(83), Command);
  EXPECT_THROW(kloC_Refuse(82), Fault);
  EXPECT_EQ(Words(84), "");
}

// ---- what is given, in which steps

TEST(LoadTest, ProceduresTakeAmplitudesAndComplexValues) {
  using namespace kprC_Procedure;
  auto state = WithC1(1.0);
  std::set<unsigned int> const without = {Buckle, Frequency, StaticRiks, StaticLinearPerturbation, SubstructureGenerate,
                                          ComplexFrequency};
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
    EXPECT_EQ(state.UseAmplitude(row.id), without.count(row.id) == 0) << row.id;
    EXPECT_EQ(state.UseComplex(row.id),
              row.id == SteadyStateDirect || row.id == SteadyStateSubspace || row.id == EmagTimeHarmonic);
  }
  EXPECT_TRUE(state.UseAmplitude(0) && state.UseAmplitude(1));
  state.amplitude = cow_String("ramp");
  Load load;
  load.Insert("A", state);
  load.Initialize(Steps("A B:P"));
  EXPECT_TRUE(load.CopiedToStep("A")->Amplitudes()[0] == "ramp");
  EXPECT_TRUE(load.CopiedToStep("B")->Amplitudes()[0] == "");

  // Complex values stand in the load and count where they are wanted and the procedure knows them.
  kloC_Pressure pressure;
  kloC_PressureState real;
  pressure.complexMag = omi_complex(0.0, 3.0);
  pressure.Insert("A", real);
  EXPECT_EQ(Refusal([&] { pressure.Initialize(Steps("A:D")); }), Words(41));
  pressure.useComplex = true;
  EXPECT_EQ(Refusal([&] { pressure.Initialize(Steps("A:D")); }), passes);
  EXPECT_EQ(pressure.GetMagImag("A"), 3.0);
  EXPECT_EQ(pressure.GetMagState("A"), SET);
  EXPECT_EQ(Refusal([&] { pressure.Initialize(Steps("A")); }), Words(41));
  pressure.distType = kloC_PressureDistributionEnm::USER_DEFINED;
  EXPECT_EQ(Refusal([&] { pressure.Initialize(Steps("A")); }), passes);
  EXPECT_EQ(pressure.GetMagImag("A"), -1.7976931348623157e308);
  EXPECT_EQ(pressure.GetMagState("A"), UNSET);
}

TEST(LoadTest, AMagnitudeMayBeYetToCome) {
  Load load;
  load.Insert("A", kloC_ConcentratedForceState());
  load.ForcedInitialize(Steps("A"));
  EXPECT_EQ(Refusal([&] { load.AssertValid(); }), Words(41));
  EXPECT_EQ(Refusal([&] { load.AssertValidAnyMagnitude(); }), passes);
  load.ForcedInitialize(Steps("A:N"));
  EXPECT_EQ(Refusal([&] { load.AssertValidAnyMagnitude(); }), Words(18));
  load.Suppress(false, false);
  EXPECT_EQ(Refusal([&] { load.AssertValid(); }), passes);
}

}  // namespace
