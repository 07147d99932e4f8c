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

auto* const environment = ::testing::AddGlobalTestEnvironment(new LibraryEnvironment());

using Load = kloC_ConcentratedForce;
using State = kloC_ConcentratedForceState;
using Ints = std::vector<int>;

constexpr char const* passes = "passes";

std::string Words(int error) {
  return Refusal([error] { kloC_Assert(false, error); });
}

State WithC1(double value) {
  State state;
  state.c1 = value;
  return state;
}

Load Created(char const* step, std::string const& plan) {
  Load load;
  load.Insert(step, WithC1(0.5));
  load.Initialize(Steps(plan));
  return load;
}

/// What stands for the value of a step that holds none.
constexpr double none = -1.0;
double C1(Load const& load, char const* step) {
  auto const* const state = static_cast<State const*>(load.StateIn(step));
  return state == nullptr ? none : state->c1.ConstGet();
}

// ---- statuses and states over the steps

struct Event {
  char const* name;
  std::function<void(Load&)> edit;
  Ints history;
};

std::function<void(Load&)> Has(std::vector<std::pair<char const*, double>> values) {
  return [values](Load& load) {
    for (auto const& [step, value] : values) EXPECT_EQ(C1(load, step), value) << step;
  };
}

void Follow(Load load, std::initializer_list<Event> events) {
  for (Event const& event : events) {
    event.edit(load);
    EXPECT_EQ(Statuses(load), event.history) << event.name;
  }
}

TEST(LoadTest, EveryEditReachesTheStepsBehindIt) {
  Follow(Created("A", "A B C D"), {
    {"created", [](Load&) {}, {0, 1, 2, 2, 2}},
    {"edited in C", [](Load& load) { load.Insert("C", WithC1(2.0)); }, {0, 1, 2, 3, 2}},
    {"deactivated in D", [](Load& load) { load.Deactivate("D"); }, {0, 1, 2, 3, 4}},
    {"reset in D", [](Load& load) { load.Reset("D"); }, {0, 1, 2, 3, 2}},
    {"moved from A to B", [](Load& load) { load.Move("A", "B"); }, {0, 0, 1, 3, 2}},
    {"the edit is inherited", Has({{"A", none}, {"B", 0.5}, {"D", 2.0}}), {0, 0, 1, 3, 2}},
    {"deactivated in C", [](Load& load) { load.Deactivate("C"); }, {0, 0, 1, 4, 5}},
    {"and where it is not there", [](Load& load) { load.Deactivate("A"), load.Deactivate("D"); }, {0, 0, 1, 4, 5}},
  });
}

TEST(LoadTest, PerturbationStepsBuildInWhatIsActive) {
  Follow(Created("A", "A B C:P D:M E"), {
    {"no state there, and the base behind it", Has({{"C", none}, {"D", none}, {"E", 0.5}}), {0, 1, 2, 8, 8, 2}},
    {"an edit there", [](Load& load) { load.Insert("C", WithC1(3.0)); }, {0, 1, 2, 8, 8, 2}},
    {"is dropped", Has({{"C", none}, {"E", 0.5}}), {0, 1, 2, 8, 8, 2}},
    {"no menu of frequencies", [](Load& load) { load.Initialize(Steps("A B C:F D:M E")); }, {0, 1, 2, 6, 8, 2}},
    {"deactivated before", [](Load& load) { load.Deactivate("B"); }, {0, 1, 4, 6, 5, 5}},
  });
  // What a perturbation step creates is for that step alone, and no frequency step carries it on.
  EXPECT_EQ(Statuses(Created("B", "A B:P C:M D")), (Ints{0, 0, 1, 7, 7}));

  Load const load = Created("A", "A B:P C!");
  EXPECT_FALSE(load.IsEditable("B"));
  EXPECT_FALSE(load.HasStep("B"));
  EXPECT_TRUE(load.IsEditable("C"));
  EXPECT_FALSE(load.IsEditable("Z"));
  EXPECT_EQ(load.GetEditableStepName("B"), "A");
}

TEST(LoadTest, KnowsItsStatusesOnly) {
  Load const load = Created("A", "A B");
  std::vector<std::function<bool(mdl_PropagationStatusEnm)>> const predicates = {
      [&](auto status) { return load.IsActive(status); },      [&](auto status) { return load.IsPropagated(status); },
      [&](auto status) { return load.IsBuiltIn(status); },     [](auto status) { return Load::IsModified(status); },
      [](auto status) { return Load::IsIllegalMove(status); },
      [](auto status) { return Load::IsValueComputed(status); }};
  std::vector<std::set<int>> const yes = {{1, 2, 3, 8}, {2}, {8}, {1, 3, 4}, {1, 3, 4}, {}};
  for (std::size_t i = 0; i < predicates.size(); ++i) {
    for (int status = 0; status < 18; ++status) {
      bool answer = false;
      EXPECT_EQ(Refusal([&] { answer = predicates[i](static_cast<mdl_PropagationStatusEnm>(status)); }),
                status <= 8 ? passes : Words(47))
          << i << " " << status;
      EXPECT_EQ(answer, yes[i].count(status) == 1) << i << " " << status;
    }
  }
  Ints const errors = {31, 7, 8, 61, 62, 63, 63};
  kloC_LoadPropagator propagator(load, load.States());
  for (int flag = 0; flag < 7; ++flag) {
    EXPECT_EQ(Refusal([&] { propagator.ErrorHandler(static_cast<kprC_PropErrorEnum>(flag)); }),
              Words(errors[static_cast<std::size_t>(flag)]));
  }
  EXPECT_FALSE(propagator.CheckFrequency(static_cast<int>(kprC_Procedure::Frequency)));
}

// ---- refusals

struct RefusedEdit {
  char const* name;
  char const* plan;
  std::function<void(Load&)> before;
  std::function<void(Load&)> edit;
  int error;  ///< 0: passes
};

auto const nothing = [](Load&) {};
auto Edited(char const* step) {
  return [step](Load& load) { load.Insert(step, WithC1(2.0)); };
}
auto Deactivated(char const* step) {
  return [step](Load& load) { load.Deactivate(step); };
}
auto Planned(std::function<void(Load&)> edit, char const* plan) {
  return [edit, plan](Load& load) {
    edit(load);
    load.Initialize(Steps(plan));
  };
}
auto Reset(char const* step) {
  return [step](Load& load) { load.Reset(step); };
}
auto Moved(char const* from, char const* to) {
  return [from, to](Load& load) { load.Move(from, to); };
}
auto Copied(char const* step) {
  return [step](Load& load) { load.CopiedToStep(step); };
}
auto Checked(char const* step) {
  return [step](Load& load) { load.CheckStep(step); };
}
auto InLoadCase(char const* step) {
  return [step](Load& load) { load.ValidInALoadCase(step, true); };
}
auto Replanned(char const* plan) {
  return [plan](Load& load) { load.Initialize(Steps(plan)); };
}
void SuppressByUser(Load& load) { load.Suppress(false, false); }

TEST(LoadTest, RefusesInOrder) {
  RefusedEdit const rows[] = {
      {"deactivation in an unknown step", "A B", nothing, Deactivated("Z"), 31},
      {"of what is built in", "A B:P!", nothing, Deactivated("B"), 8},
      {"in a step without the type", "A B:H!", nothing, Deactivated("B"), 9},
      {"in a suppressed step", "A B!", nothing, Deactivated("B"), 74},
      {"twice", "A B", Deactivated("B"), Deactivated("B"), 0},
      {"a step that deactivates becomes a perturbation, which holds it on", "A B", Deactivated("B"), Replanned("A B:P"), 0},
      {"reset of the creation", "A! B", nothing, Reset("A"), 15},
      {"of a modification", "A B!", Edited("B"), Reset("B"), 67},
      {"in a suppressed step", "A B", Planned(Deactivated("B"), "A B!"), Reset("B"), 75},
      {"of what is built in", "A B:P", nothing, Reset("B"), 0},
      {"replacing the create step", "A B", nothing, [](Load& load) { load.ReplaceStep("A"); }, 15},
      {"move to the same step", "A! B:N", nothing, Moved("A", "A"), 0},
      {"onto an edit", "A B C D", Edited("D"), Moved("A", "D"), 23},
      {"across an edit", "A B C D", [](Load& load) { Edited("B")(load), Edited("D")(load); }, Moved("A", "D"), 22},
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
      {"zero magnitude", "A", nothing, [](Load& load) { load.Insert("A", WithC1(0.0)); }, 41},
      {"zero magnitude later", "A B", nothing, [](Load& load) { load.Insert("B", WithC1(0.0)); }, 0},
      {"field without a name", "A", nothing,
       [](Load& load) { load.distribution = kloC_DistributionEnm::FIELD, load.AssertValid(); }, 69},
  };
  for (RefusedEdit const& row : rows) {
    Load load = Created("A", row.plan);
    row.before(load);
    EXPECT_EQ(Refusal([&] { row.edit(load); }), row.error == 0 ? passes : Words(row.error)) << row.name;
  }
  // Out of a perturbation, and out of a flow step that was a general one when the edit was made.
  EXPECT_EQ(Refusal([] { Created("B", "A B:P C").Move("B", "A"); }), Words(24));
  kloC_BodyForce inFlow;
  kloC_BodyForceState force;
  force.c2 = 1.0;
  inFlow.Insert("A", force);
  inFlow.Initialize(Steps("A:W B"));
  EXPECT_EQ(Refusal([&] { inFlow.Move("A", "B"); }), Words(82));
  inFlow.distType = kloC_DistributionEnm::USER_DEFINED;
  EXPECT_EQ(Refusal([&] { inFlow.AssertValid(); }), Words(76));
  EXPECT_EQ(Refusal([] { Load().Sync(); }), Words(31));
}

TEST(LoadTest, NamesAreLookedUpBeforeAMoveChangesAnything) {
  Load load = Created("A", "A B C D:H");
  Load const before = load;
  EXPECT_EQ(Refusal([&] { load.Move("A", "Z"); }), "Z");
  EXPECT_EQ(Refusal([&] { load.Move("Z", "A"); }), "Z");
  EXPECT_TRUE(cls_EqualValues(load, before));
  // A refusal by the destination comes after the states between are dropped.
  EXPECT_EQ(Refusal([&] { load.Move("A", "D"); }), Words(33));
  EXPECT_EQ(load.StateIn("B"), nullptr);
}

TEST(LoadTest, LoadCasesTakeMechanicalLoadsButNoConnectors) {
  kloC_ConnectorForce connector;
  kloC_ConnectorForceState force;
  force.c1 = 1.0;
  connector.Insert("A", force);
  connector.Initialize(Steps("A"));
  EXPECT_EQ(Refusal([&] { connector.ValidInALoadCase("A", true); }), Words(54));
  kloC_SurfaceHeatFlux flux;
  kloC_SurfaceHeatFluxState heat;
  heat.magnitude = 1.0;
  flux.Insert("A", heat);
  flux.Initialize(Steps("A:H"));
  EXPECT_EQ(Refusal([&] { flux.ValidInALoadCase("A", true); }), Words(53));
  EXPECT_FALSE(flux.ValidInALoadCase("A", false));
}

TEST(LoadTest, TellsRefusedCommandsFromFaults) {
  using Command = nex_CmdException<cow_String, 1>;
  using Fault = nex_PrimException<atr_String, 1>;
  for (int const number : {2, 5, 17, 19, 20, 21, 31, 32, 37, 38, 39, 40, 42, 83}) {
    EXPECT_THROW(kloC_Assert(false, number), Command) << number;
  }
  int faults = 0;
  for (int number = 0; number < 84; ++number) {
    EXPECT_NE(Words(number), "") << number;
    try {
      kloC_Refuse(number);
    } catch (Fault const&) {
      ++faults;
    } catch (Command const&) {
    }
  }
  EXPECT_EQ(faults, 84 - 14);
  EXPECT_EQ(Words(84), "");
}

// ---- what is given, in which steps

TEST(LoadTest, ProceduresTakeAmplitudesAndComplexValues) {
  using namespace kprC_Procedure;
  State state = WithC1(1.0);
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
  load.Insert("A", State());
  load.ForcedInitialize(Steps("A"));
  EXPECT_EQ(Refusal([&] { load.AssertValid(); }), Words(41));
  EXPECT_EQ(Refusal([&] { load.AssertValidAnyMagnitude(); }), passes);
  load.ForcedInitialize(Steps("A:N"));
  EXPECT_EQ(Refusal([&] { load.AssertValidAnyMagnitude(); }), Words(18));
  load.Suppress(false, false);
  EXPECT_EQ(Refusal([&] { load.AssertValid(); }), passes);
}

}  // namespace
