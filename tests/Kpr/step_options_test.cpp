#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "../Validity.h"
#include "dbc_ModelFile.h"
#include "kprC.h"

namespace {

using List = cls_xp1DArrayListDouble;
using Primary = kprC_PrimaryControls;

template <class T>
ValidityRow<T> Entry(int code, List T::*list, int place, double value) {
  return {code, [=](T& controls) { (controls.*list).Put(place, value); }};
}
template <class T>
ValidityRow<T> Longer(int code, List T::*list) {
  return {code, [=](T& controls) { (controls.*list).Append(1.0); }};
}

std::set<int> const primaryNumbers{103, 105, 106, 107, 108, 109, 110, 111, 112, 166};

template <class T>
std::vector<ValidityRow<T>> PrimaryRows() {
  auto const times = &Primary::timeIncrementation;
  auto const search = &Primary::lineSearch;
  return {{103, "allowPropagation=true resetDefaultValues=true"},
          {0, "allowPropagation=true"},
          {0, "resetDefaultValues=true discontinuous=false"},
          {105, "discontinuous=true"},
          {106,
           [](T& controls) {
             controls.discontinuous = true;
             controls.timeIncrementation.Put(0, 8.0);
           }},
          {0,
           [](T& controls) {
             controls.discontinuous = true;
             controls.timeIncrementation.Put(0, 8.0);
             controls.timeIncrementation.Put(1, 10.0);
           }},
          Entry<T>(107, search, 0, 2.5),
          Entry<T>(108, times, 10, 50.5),
          Entry<T>(0, times, 11, 0.3),
          Entry<T>(109, search, 0, -1.0),
          Entry<T>(110, times, 9, 11.0),
          Entry<T>(0, times, 9, 10.0),
          Entry<T>(111, times, 26, 1.1),
          Entry<T>(0, times, 26, 1.0),
          Entry<T>(112, times, 0, 2.0),
          Entry<T>(0, times, 0, 3.0),
          Entry<T>(166, times, 27, 0.9)};
}

/// A field's list, and its numbers for two average fluxes and for extraneous data.
template <class T>
struct FieldOf {
  List T::*numbers;
  int bothFluxes;
  int extraneous;
};

template <class T>
void ExpectControls(std::vector<FieldOf<T>> const& fields, std::set<int> listed = {},
                    std::vector<ValidityRow<T>> rows = {}) {
  listed.insert({113, 128, 129, 131});
  listed.insert(primaryNumbers.begin(), primaryNumbers.end());
  for (auto& row : PrimaryRows<T>()) rows.push_back(std::move(row));
  rows.push_back(Longer<T>(128, &Primary::constraints));
  rows.push_back(Longer<T>(129, &Primary::lineSearch));
  rows.push_back(Longer<T>(131, &Primary::timeIncrementation));
  rows.push_back(Entry<T>(113, &Primary::constraints, 8, -1.0));
  for (auto const& [numbers, bothFluxes, extraneous] : fields) {
    listed.insert({bothFluxes, extraneous});
    rows.push_back(Longer(extraneous, numbers));
    rows.push_back(Entry(113, numbers, 10, -0.1));
    rows.push_back(Entry(0, numbers, 0, 0.0));
    rows.push_back(Entry(113, numbers, 5, 0.0));
    rows.push_back(Entry(113, numbers, 9, 0.0));
    rows.push_back(Entry(0, numbers, 3, 2.0));
    rows.push_back({bothFluxes, [numbers = numbers](T& controls) {
                      (controls.*numbers).Put(2, 1.0);
                      (controls.*numbers).Put(3, 1.0);
                    }});
    rows.push_back({0, [numbers = numbers](T& controls) { controls.*numbers = List{0.01, 0.02, 1.0}; }});
  }
  ExpectValidity<T>("", listed, rows);

  // One set of numbers for all fields: the same for each, with identities of their own.
  T controls;
  List global;
  global.Resize(12);
  EXPECT_EQ(Refusal([&] { controls.SetGlobalField(global); }), WordsOf(139));
  EXPECT_TRUE(cls_EqualValues(controls, T()));
  controls.SetGlobalField(cow_List<double>{0.7});
  std::set<std::uint64_t> identities;
  for (auto const& field : fields) {
    EXPECT_EQ(controls.*field.numbers, cow_List<double>{0.7});
    identities.insert((controls.*field.numbers).Uid().Value());
  }
  EXPECT_EQ(identities.size(), fields.size());
}

template <class T>
std::vector<FieldOf<T>> StressFields() {
  return {{&T::displacementField, 117, 133},
          {&T::hydrostaticFluidPressureField, 118, 135},
          {&T::rotationField, 119, 137}};
}
template <class T>
std::vector<FieldOf<T>> operator+(std::vector<FieldOf<T>> fields, FieldOf<T> const& field) {
  fields.push_back(field);
  return fields;
}

TEST(StepOptionsTest, ControlsRefuseTheListsAndFieldsOfTheirProcedure) {
  ExpectValidity<kprC_InactiveControls>("", {103}, {{103, "allowPropagation=true resetDefaultValues=true"}});
  ExpectValidity<Primary>("", primaryNumbers, PrimaryRows<Primary>());
  ExpectControls(StressFields<kprC_TypicalControls>());
  using CTD = kprC_CTDControls;
  ExpectControls(StressFields<CTD>() + FieldOf<CTD>{&CTD::temperatureField, 115, 138});
  using Pore = kprC_PoreControls;
  ExpectControls(StressFields<Pore>() + FieldOf<Pore>{&Pore::poreFluidPressureField, 120, 136});
  using Electrical = kprC_ElectricalControls;
  ExpectControls(StressFields<Electrical>() + FieldOf<Electrical>{&Electrical::electricalPotentialField, 116, 134});
  using ETS = kprC_ETSControls;
  ExpectControls(StressFields<ETS>() + FieldOf<ETS>{&ETS::temperatureField, 115, 138} +
                 FieldOf<ETS>{&ETS::electricalPotentialField, 116, 134});
  using Diffusion = kprC_MassDiffusionControls;
  ExpectControls<Diffusion>({{&Diffusion::concentrationField, 114, 132}});
  using Heat = kprC_HeatTransferControls;
  ExpectControls<Heat>({{&Heat::temperatureField, 115, 138}});
  using CTE = kprC_CTEControls;
  ExpectControls<CTE>({{&CTE::temperatureField, 115, 138}, {&CTE::electricalPotentialField, 116, 134}});
  using Cyclic = kprC_DirectCyclicControls;
  ExpectControls<Cyclic>({{&Cyclic::displacementField, 117, 133}, {&Cyclic::rotationField, 119, 137}}, {130},
                         {Longer(130, &Cyclic::directCyclic), Entry(113, &Cyclic::directCyclic, 4, -1.0)});
}

// Every fault at once; each repair uncovers the next one, from the base to the last field.
TEST(StepOptionsTest, ControlsFindFaultsInOrder) {
  kprC_CTDControls controls;
  auto const put = [&](std::initializer_list<std::pair<int, double>> entries) {
    for (auto const& [place, value] : entries) controls.timeIncrementation.Put(place, value);
  };
  controls.allowPropagation = controls.resetDefaultValues = controls.discontinuous = true;
  put({{0, 1.5}, {9, 11.0}, {26, 2.0}, {27, 0.5}});
  controls.timeIncrementation.Append(0.0);
  controls.lineSearch = List{-1.5, 1.0, 0.1, 0.25, 0.1, 0.0};
  controls.constraints.Append(0.0);
  controls.temperatureField = controls.displacementField = List{0, 0, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0};

  std::pair<int, std::function<void()>> const repairs[] = {
      {103, [&] { controls.allowPropagation = false; }},
      {105, [&] { put({{0, 8.0}}); }},
      {106, [&] { controls.discontinuous = false; }},
      {107, [&] { controls.lineSearch.Put(0, -1.0), put({{0, 2.5}}); }},
      {108, [&] { put({{0, 2.0}}); }},
      {109, [&] { controls.lineSearch.Put(0, 5.0); }},
      {110, [&] { put({{9, 3.0}}); }},
      {111, [&] { put({{26, 0.9}}); }},
      {112, [&] { put({{0, 4.0}}); }},
      {166, [&] { put({{27, 1.0}}); }},
      {128, [&] { controls.constraints = List(); }},
      {129, [&] { controls.lineSearch.RemoveLast(); }},
      {131, [&] { controls.timeIncrementation.RemoveLast(); }},
      {133, [&] { controls.displacementField.RemoveLast(); }},
      {113, [&] { controls.displacementField.Put(5, 1.0), controls.displacementField.Put(9, 1.0); }},
      {117, [&] { controls.displacementField.Put(2, 0.0); }},
      {138, [&] { controls.temperatureField = controls.displacementField; }},
  };
  for (auto const& [code, repair] : repairs) {
    EXPECT_EQ(Refusal([&] { controls.AssertValid(); }), WordsOf(code));
    repair();
  }
  EXPECT_EQ(Refusal([&] { controls.AssertValid(); }), "passes");

  controls.timeIncrementation.RemoveLast();
  EXPECT_DEATH(controls.AssertValid(), "");
}

template <class... Classes>
void ExpectGroups() {
  auto const has = [](cls_AttributeTable const& table, char const* name) { return table.Find(name) != nullptr; };
  auto const check = [&](cls_AttributeTable const& table, unsigned int id) {
    SCOPED_TRACE(table.Name().CStr());
    EXPECT_EQ(kprC_HasRotationControls(id), has(table, "rotationField"));
    EXPECT_EQ(kprC_HasDisplacementControls(id), has(table, "displacementField"));
    EXPECT_EQ(kprC_HasHydrostaticControls(id), has(table, "hydrostaticFluidPressureField"));
    EXPECT_EQ(kprC_HasTemperatureControls(id), has(table, "temperatureField"));
    EXPECT_EQ(kprC_HasPoreControls(id), has(table, "poreFluidPressureField"));
    EXPECT_EQ(kprC_HasConcentrationControls(id), has(table, "concentrationField"));
    EXPECT_EQ(kprC_HasElectricalControls(id), has(table, "electricalPotentialField"));
  };
  (check(Classes::Attributes(), Classes::TypeId()), ...);
}

TEST(StepOptionsTest, QuestionsAboutControlsKnowTheFieldsOfTheClasses) {
  ExpectGroups<kprC_Controls, kprC_InactiveControls, Primary, kprC_TypicalControls, kprC_CTDControls, kprC_PoreControls,
               kprC_MassDiffusionControls, kprC_HeatTransferControls, kprC_CTEControls, kprC_ElectricalControls,
               kprC_ETSControls, kprC_DirectCyclicControls, kprC_LinearCtrl>();
}

TEST(StepOptionsTest, MassScalingNeedsWhatItsObjectiveNeeds) {
  ExpectValidity<kprC_MassScaling>(
      "factor=2", {58, 59, 60, 61, 62, 63},
      {{59, "factor=0"},
       {0, "factor=0 dt=0.1"},
       {58, "occurs=THROUGHOUT_STEP"},
       {60, "occurs=THROUGHOUT_STEP dt=0.1"},
       {0, "occurs=THROUGHOUT_STEP dt=0.1 frequency=1"},
       {0, "occurs=THROUGHOUT_STEP dt=0.1 numberInterval=-1"},
       {61, "objective=AUTOMATIC extrudedLength=1 crossSection=1 frequency=1"},
       {62, "objective=AUTOMATIC feedRate=1 crossSection=1 frequency=1"},
       {63, "objective=AUTOMATIC feedRate=1 extrudedLength=1 frequency=1"},
       {60, "objective=AUTOMATIC feedRate=1 extrudedLength=1 crossSection=1"},
       {0, "objective=AUTOMATIC feedRate=1 extrudedLength=1 crossSection=1 numberInterval=5 factor=0"},
       {0, "objective=REINITIALIZE factor=0"},
       {0, "objective=DISABLE_THROUGHOUT_STEP factor=0"}});
}

TEST(StepOptionsTest, TimePointsAscendAndAreNotTooMany) {
  ExpectValidity<kprC_TimePoint>("points=0.4;0.5", {167, 168, 169, 171, 172, 173, 264},
                                 {{168, "points="},
                                  {167, "points=0.1,0.2"},
                                  {167, [](kprC_TimePoint& point) { point.points.Append(List()); }},
                                  {264, "points=-0.1;0.5"},
                                  {169, "points=0.5;0.4"},
                                  {169, "points=0,1,0.1;0.9"},
                                  {0, "points=0,1,0.1;1,2,0.2"},
                                  {171, "points=1,0.5,0.1"},
                                  {172, "points=0,1,0"},
                                  {173, "points=0,1,1e-06"},
                                  {173, "points=0,1,2e-06;1,2,2e-06"},
                                  {0, "points=0,999999,1"}});
}

TEST(StepOptionsTest, TheOtherOptionsRefuseTheirNumbers) {
  ExpectValidity<kprC_LinearCtrl>("", {150, 151, 313},
                                  {{150, "relativeTolerance=-1"},
                                   {0, "relativeTolerance=0 maxIterations=0"},
                                   {151, "maxIterations=-1"},
                                   {313, "fillInLevel=-1"},
                                   {313, "fillInLevel=4"},
                                   {0, "fillInLevel=3"}});
  ExpectValidity<kprC_ExplicitContactControls>("", {124, 125, 126, 127},
                                               {{124, "inc=0"},
                                                {125, "warpCheckPeriod=0"},
                                                {126, "warpCutOff=0"},
                                                {127, "penalty=-1"},
                                                {0, "penalty=0"}});
  auto const byBoth = [](auto type) {
    using Restart = typename decltype(type)::type;
    ExpectValidity<Restart>("", {121, 122, 170},
                            {{121, "frequency=-1"},
                             {122, "numberIntervals=-1"},
                             {170, "frequency=1 numberIntervals=1"},
                             {0, "numberIntervals=1"},
                             {0, "frequency=1"}});
  };
  byBoth(std::type_identity<kprC_StandardRestart>());
  byBoth(std::type_identity<kprC_FlowRestart>());
  ExpectValidity<kprC_ExplicitRestart>("", {122}, {{122, "numberIntervals=0"}});
  ExpectValidity<kprC_StandardMonitor>("", {121, 123}, {{121, "frequency=-1"}, {123, "dof=0 frequency=-1"}});
  ExpectValidity<kprC_ExplicitMonitor>("", {123}, {{123, "dof=0"}});
  ExpectValidity<kprC_StandardDiagnosticPrint>("", {121}, {{121, "frequency=-1"}, {0, "frequency=0"}});
  ExpectValidity<kprC_PerturbationDiagnosticPrint>("", {121}, {{121, "frequency=-1"}});
  ExpectValidity<kprC_StepControl>("", {317}, {{317, "action=CONTINUE"}, {0, "action=CONTINUE dtRefinement=YES"}});
}

TEST(StepOptionsTest, StepControlsAskForTheirSensorsAndForNewNames) {
  kprC_StepControl control;
  EXPECT_EQ(Refusal([&] { control.AssertEditable(); }), "passes");
  control.suppress = true;
  EXPECT_EQ(Refusal([&] { control.AssertEditable(); }), WordsOf(315));
  control.sensorNames = {cow_String("gauge"), cow_String("probe")};
  EXPECT_EQ(Refusal([&] { control.AssertSensorsAreAmong({cow_String("gauge")}); }), WordsOf(318));
  EXPECT_EQ(Refusal([&] { control.AssertSensorsAreAmong({cow_String("probe"), cow_String("gauge")}); }), "passes");

  kprC_StepContainer steps;
  steps.SetInitialStep("Initial", kprC_InitialStep());
  kprC_StaticStep step;
  steps.InsertAfter("Initial", "A", step, true);
  step.scc.Insert("stop", new kprC_StepControl());
  step.scc2.Insert("wear", new kprC_StepCyclingControl());
  steps.InsertAfter("A", "B", step, true);
  EXPECT_EQ(Refusal([&] { kprC_StepControl::AssertNameIsNew(steps, "stop"); }), WordsOf(316));
  EXPECT_EQ(Refusal([&] { kprC_StepControl::AssertNameIsNew(steps, "wear"); }), "passes");
}

TEST(StepOptionsTest, RestartAsksForWhatTheStepCanMeet) {
  using namespace kprC_Procedure;
  auto const refusal = [](kprC_Restart const& restart, kprC_Step const& step) {
    return Refusal([&] { restart.AssertAllowedIn(step); });
  };
  kprC_StandardRestart restart;
  EXPECT_EQ(refusal(restart, kprC_InitialStep()), WordsOf(158));

  kprC_FrequencyStep const frequency;
  EXPECT_EQ(refusal(restart, frequency), "passes");
  restart.numberIntervals = 2;
  EXPECT_EQ(refusal(restart, frequency), WordsOf(176));
  restart.timeMarks = true;
  EXPECT_EQ(refusal(restart, frequency), WordsOf(175));
  restart.overlay = true;
  EXPECT_EQ(refusal(restart, frequency), WordsOf(174));
  EXPECT_EQ(refusal(restart, PlannedStep(Buckle)), WordsOf(174));

  kprC_StaticStep statics;
  EXPECT_EQ(refusal(restart, statics), "passes");
  statics.timeIncrementationMethod = kprC_Step::FIXED;
  EXPECT_EQ(refusal(restart, statics), WordsOf(175));
  restart.timeMarks = false;
  EXPECT_EQ(refusal(restart, statics), "passes");

  kprC_ExplicitRestart explicitRestart;
  explicitRestart.timeMarks = true;
  EXPECT_EQ(refusal(explicitRestart, PlannedStep(ExplicitDynamics)), "passes");
  kprC_FlowRestart flow;
  flow.numberIntervals = 3;
  EXPECT_EQ(refusal(flow, PlannedStep(Flow)), "passes");
  EXPECT_EQ(refusal(flow, PlannedStep(StaticRiks)), WordsOf(176));
}

// A step of each kind of options, saved and read, still has options of these classes with their numbers.
template <class Controls, class Restart, class Monitor, class Print, class Contact>
void ExpectKept() {
  kprC_StaticStep step;
  step.restart = new Restart();
  step.restart.Get().overlay = true;
  step.monitor = new Monitor();
  step.monitor.Get().node.name = "tip";
  step.diagnosticPrint = new Print();
  auto* const controls = new Controls();
  controls->resetDefaultValues = true;
  if constexpr (std::derived_from<Controls, Primary>) controls->SetGlobalField(cow_List<double>{0.25, 0.5});
  step.controls = controls;
  step.contactControls.Append(new Contact());
  auto* const tracking = new kprC_ExplicitContactControls();
  tracking->cpset = "pads";
  step.contactControls.Append(tracking);
  step.contactControls.Append(step.contactControls[0]);
  step.linearCtrl = new kprC_LinearCtrl();
  step.linearCtrl.Get().fillInLevel = 2;
  auto* const stop = new kprC_StepControl();
  stop->sensorNames = {cow_String("gauge")};
  stop->sensorThresholdCriteriaValues.Resize(1);
  stop->sensorThresholdCriteriaValues.Get(0).definition = kprC_StepControlSensorThresholdCriteria::ABS_MAX;
  step.scc.Insert("stop", stop);
  auto* const wear = new kprC_StepCyclingControl();
  wear->criterion = kprC_StepCyclingControl::WEAR_BASED;
  wear->wearThresholdDistances = {0.125};
  step.scc2.Insert("wear", wear);

  auto const read = dbc_DecodeObject(dbc_EncodeObject(step), "step");
  EXPECT_TRUE(cls_EqualValues(*read, step)) << Controls::Attributes().Name().CStr();
  auto& same = static_cast<kprC_StaticStep&>(*read);
  EXPECT_EQ(same.restart.ConstGet().DynTypeId(), Restart::TypeId());
  EXPECT_EQ(same.monitor.ConstGet().DynTypeId(), Monitor::TypeId());
  EXPECT_EQ(same.diagnosticPrint.ConstGet().DynTypeId(), Print::TypeId());
  EXPECT_EQ(same.controls.ConstGet().DynTypeId(), Controls::TypeId());
  EXPECT_EQ(same.contactControls[0].ConstGet().DynTypeId(), Contact::TypeId());
  EXPECT_TRUE(same.contactControls[0].Identical(same.contactControls[2]));
  auto const& kept = dynamic_cast<kprC_ExplicitContactControls const&>(same.contactControls[1].ConstGet());
  EXPECT_EQ(kept.cpset, "pads");

  // What is changed in the one is not changed in the other, nor in a copy that shares all with it.
  kprC_StaticStep const before = same;
  static_cast<kprC_ExplicitContactControls&>(same.contactControls.Get(1).Get()).inc = 7;
  EXPECT_FALSE(cls_EqualValues(same, step));
  EXPECT_TRUE(cls_EqualValues(before, step));
}

TEST(StepOptionsTest, OptionsOfAStepSurviveSavingWithTheirClasses) {
  ExpectKept<kprC_TypicalControls, kprC_StandardRestart, kprC_StandardMonitor, kprC_StandardDiagnosticPrint,
             kprC_StandardContactControls>();
  ExpectKept<kprC_InactiveControls, kprC_ExplicitRestart, kprC_ExplicitMonitor, kprC_ExplicitDiagnosticPrint,
             kprC_ExplicitContactControls>();
  ExpectKept<kprC_ETSControls, kprC_FlowRestart, kprC_Monitor, kprC_FlowDiagnosticPrint, kprC_ContactControls>();
  ExpectKept<kprC_CTDControls, kprC_Restart, kprC_Monitor, kprC_PerturbationDiagnosticPrint, kprC_ContactControls>();
  auto const others = []<class... Controls>(std::type_identity<Controls>...) {
    (ExpectKept<Controls, kprC_Restart, kprC_Monitor, kprC_DiagnosticPrint, kprC_ContactControls>(), ...);
  };
  others(std::type_identity<kprC_Controls>(), std::type_identity<Primary>(), std::type_identity<kprC_PoreControls>(),
         std::type_identity<kprC_MassDiffusionControls>(), std::type_identity<kprC_HeatTransferControls>(),
         std::type_identity<kprC_CTEControls>(), std::type_identity<kprC_ElectricalControls>(),
         std::type_identity<kprC_DirectCyclicControls>());
}

}  // namespace
