#include <gtest/gtest.h>

#include "../Validity.h"
#include "cls_Registrar.h"
#include "kprC_CoupledTempDisplacementStep.h"
#include "kprC_CoupledThermalElectricStep.h"
#include "kprC_CoupledThermalElectrochemStructPorepressureStep.h"
#include "kprC_CoupledThermalElectrochemStructStep.h"
#include "kprC_CoupledThermalElectrochemicalStep.h"
#include "kprC_DirectCyclicStep.h"
#include "kprC_ElecThermalStructuralStep.h"
#include "kprC_ExplicitDynamicsStep.h"
#include "kprC_FlowStep.h"
#include "kprC_GeostaticStep.h"
#include "kprC_HeatTransferStep.h"
#include "kprC_ImplicitDynamicsStep.h"
#include "kprC_MassDiffusionStep.h"
#include "kprC_SoilsStep.h"
#include "kprC_StaticRiksStep.h"
#include "kprC_StepContainer.h"
#include "kprC_SubspaceDynamicsStep.h"
#include "kprC_TempDisplacementDynamicsStep.h"
#include "kprC_ViscoStep.h"
#include "kprC_stepUtils.h"

namespace {

template <class T>
using Rows = std::vector<ValidityRow<T>>;
using Codes = std::set<int>;

template <class T>
Rows<T> operator+(Rows<T> a, Rows<T> const& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}
Codes operator+(Codes a, Codes const& b) {
  a.insert(b.begin(), b.end());
  return a;
}

std::string const increments = "initialInc=0.1 minInc=1e-5 maxInc=0.2 ";
Codes const ofIncrements{5, 74, 75, 76, 77, 78, 80, 81, 82, 83};

template <class T>
Rows<T> IncrementRows() {
  return {
      {77, "timePeriod=0"},
      {74, "initialInc=0"},
      {78, "initialInc=2 maxInc=3"},
      {0, "initialInc=1 minInc=1 maxInc=1"},
      {5, "maxNumInc=0"},
      {75, "minInc=0"},
      {82, "maxInc=1e-6"},
      {83, "minInc=0.15"},
      {81, "maxInc=0.05"},
      {0, "timeIncrementationMethod=FIXED minInc=-1 maxInc=-1"},
      {5, "timeIncrementationMethod=FIXED maxNumInc=0"},
      {78, "timeIncrementationMethod=FIXED initialInc=1.5"},
  };
}
template <class T>
Rows<T> MaxIncRows() {
  return {{76, "maxInc=0"}, {80, "maxInc=2"}};
}
template <class T>
Rows<T> DirectSolverRows() {
  return {{145, "matrixSolver=ITERATIVE"}, {0, "matrixStorage=UNSYMMETRIC"}};
}
template <class T>
Rows<T> QuasiNewtonRows() {
  return {{276, "solutionTechnique=QUASI_NEWTON matrixStorage=UNSYMMETRIC"},
          {274, "solutionTechnique=QUASI_NEWTON matrixStorage=SYMMETRIC reformKernel=-1"},
          {0, "solutionTechnique=QUASI_NEWTON matrixStorage=SYMMETRIC reformKernel=0"},
          {0, "matrixStorage=UNSYMMETRIC reformKernel=-1"}};
}
template <class T>
Rows<T> SolverRows() {
  return {{275, "matrixSolver=ITERATIVE solutionTechnique=SEPARATED"}, {0, "matrixSolver=ITERATIVE"}};
}
template <class T>
Rows<T> DampingRows() {
  return {{253, "adaptiveDampingRatio=-1"},
          {254, "continueDampingFactors=true"},
          {0, "continueDampingFactors=true adaptiveDampingRatio=0"}};
}

TEST(GeneralProceduresTest, StaticStepsRefuseFaultyIncrementsSolversAndDamping) {
  using Static = kprC_StaticStep;
  Rows<Static> const stabilized{{275, "matrixSolver=ITERATIVE stabilizationMethod=DAMPING_FACTOR"}};
  ExpectValidity<Static>(increments.c_str(), ofIncrements + Codes{253, 254, 274, 275, 276},
                         IncrementRows<Static>() + SolverRows<Static>() + QuasiNewtonRows<Static>() +
                             DampingRows<Static>() + stabilized + Rows<Static>{{82, "maxInc=0"}, {80, "maxInc=2"}},
                         {76});

  using Visco = kprC_ViscoStep;
  ExpectValidity<Visco>((increments + "cetol=1e-3").c_str(), ofIncrements + Codes{34, 253, 274, 275, 276},
                        IncrementRows<Visco>() + MaxIncRows<Visco>() + SolverRows<Visco>() + QuasiNewtonRows<Visco>() +
                            Rows<Visco>{{275, "matrixSolver=ITERATIVE stabilizationMethod=DAMPING_FACTOR"},
                                        {34, "cetol=0"},
                                        {34, "cetol=(default)"},
                                        {0, "cetol=(default) timeIncrementationMethod=FIXED"},
                                        {253, "adaptiveDampingRatio=-1"},
                                        {0, "continueDampingFactors=true"}});

  using Riks = kprC_StaticRiksStep;
  ExpectValidity<Riks>("initialArcInc=0.1", {30, 31, 32, 64, 65, 66, 67, 68, 145},
                       DirectSolverRows<Riks>() + Rows<Riks>{
                                                      {64, "initialArcInc=0"},
                                                      {67, "totalArcLength=0"},
                                                      {68, "initialArcInc=2"},
                                                      {0, "initialArcInc=1"},
                                                      {65, "minArcInc=-1"},
                                                      {66, "maxArcInc=-1"},
                                                      {0, "minArcInc=0 maxArcInc=0"},
                                                      {0, "minArcInc=-1 timeIncrementationMethod=FIXED"},
                                                      {30, "maxLPF=0"},
                                                      {31, "monitorNodeOn=true monitorDof=1"},
                                                      {32, "monitorNodeOn=true region=tip"},
                                                      {0, "monitorNodeOn=true region=tip monitorDof=1"},
                                                      {0, "monitorDof=-1"},
                                                  });
}

TEST(GeneralProceduresTest, SoilStepsAskForTheTolerancesThatApply) {
  using Soils = kprC_SoilsStep;
  ExpectValidity<Soils>((increments + "utol=100").c_str(), ofIncrements + Codes{6, 25, 26, 34, 253, 254, 274, 275, 276},
                        IncrementRows<Soils>() + MaxIncRows<Soils>() + SolverRows<Soils>() + QuasiNewtonRows<Soils>() +
                            DampingRows<Soils>() +
                            Rows<Soils>{
                                {6, "timeIncrementationMethod=FIXED initialInc=0"},
                                {0, "timeIncrementationMethod=FIXED utol=(default)"},
                                {25, "utol=(default)"},
                                {25, "utol=0 cetol=0"},
                                {0, "utol=(default) cetol=1e-3"},
                                {26, "creepBehavior=false utol=0 cetol=1e-3"},
                                {34, "response=STEADY_STATE"},
                                {0, "response=STEADY_STATE creepBehavior=false utol=(default)"},
                            });
  kprC_SoilsStep soils;
  EXPECT_EQ(soils.Response(), kprC_Step::TRANSIENT);
  soils.response = kprC_SoilsStep::SoilsResponseEnm::STEADY_STATE;
  EXPECT_EQ(soils.Response(), kprC_Step::STEADY_STATE);

  using Geostatic = kprC_GeostaticStep;
  ExpectValidity<Geostatic>(increments.c_str(), {5, 27, 28, 74, 75, 76, 77, 78, 81, 82, 83, 275, 276},
                            IncrementRows<Geostatic>() + SolverRows<Geostatic>() +
                                Rows<Geostatic>{
                                    {76, "maxInc=0"},
                                    {0, "maxInc=2"},
                                    {27, "utol=0"},
                                    {28, "utol=1 timeIncrementationMethod=FIXED"},
                                    {276, "solutionTechnique=QUASI_NEWTON matrixStorage=UNSYMMETRIC"},
                                    {0, "solutionTechnique=QUASI_NEWTON reformKernel=-1"},
                                });
  EXPECT_EQ(Geostatic().TimePeriod(), 0.0);
}

template <class T>
void ExpectCoupledStructural(Codes const& more = {}, Rows<T> const& rows = {}) {
  ExpectValidity<T>((increments + "deltmx=10").c_str(), ofIncrements + Codes{10, 90, 145, 253, 254} + more,
                    IncrementRows<T>() + MaxIncRows<T>() + DirectSolverRows<T>() + DampingRows<T>() +
                        Rows<T>{
                            {10, "deltmx=(default)"},
                            {10, "deltmx=0 cetol=0"},
                            {0, "deltmx=(default) cetol=1e-3"},
                            {0, "deltmx=(default) response=STEADY_STATE"},
                            {0, "deltmx=(default) timeIncrementationMethod=FIXED"},
                            {90, "stabilizationMagnitude=2e-4"},
                            {0, "stabilizationMagnitude=2e-4 stabilizationMethod=DISSIPATED_ENERGY_FRACTION"},
                        } +
                        rows);
}

TEST(GeneralProceduresTest, CoupledStepsRefuseFaultyTolerancesAndStabilization) {
  using CTD = kprC_CoupledTempDisplacementStep;
  ExpectCoupledStructural<CTD>(
      {93}, {{93, [](CTD& s) { s.creepIntegration = CTD::CreepIntegrationEnm(4); }}, {0, "creepIntegration=IMPLICIT"}});
  ExpectCoupledStructural<kprC_ElecThermalStructuralStep>();
  ExpectCoupledStructural<kprC_CoupledThermalElectrochemStructStep>();
  ExpectCoupledStructural<kprC_CoupledThermalElectrochemStructPorepressureStep>();
}

template <class T>
void ExpectDirectlySolved(Codes const& more, Rows<T> const& rows) {
  ExpectValidity<T>(increments.c_str(), ofIncrements + Codes{145} + more,
                    IncrementRows<T>() + MaxIncRows<T>() + DirectSolverRows<T>() + rows);
}

TEST(GeneralProceduresTest, FieldStepsRefuseFaultyLimits) {
  using Heat = kprC_HeatTransferStep;
  ExpectValidity<Heat>(increments.c_str(), ofIncrements + Codes{11, 274, 275, 276},
                       IncrementRows<Heat>() + MaxIncRows<Heat>() + SolverRows<Heat>() + QuasiNewtonRows<Heat>() +
                           Rows<Heat>{{11, "mxdem=0"}});
  ExpectDirectlySolved<kprC_CoupledThermalElectricStep>({11}, {{11, "mxdem=0"}});
  ExpectDirectlySolved<kprC_MassDiffusionStep>({17}, {{17, "end=0"}, {0, "end=1e-3"}});
  ExpectDirectlySolved<kprC_CoupledThermalElectrochemicalStep>({}, {});
}

TEST(GeneralProceduresTest, CyclesAreCountedUpwards) {
  using Cyclic = kprC_DirectCyclicStep;
  ExpectValidity<Cyclic>((increments + "cetol=1e-3").c_str(),
                         ofIncrements + Codes{10, 145, 265, 266, 267, 268, 269, 270, 271, 272, 273},
                         IncrementRows<Cyclic>() + MaxIncRows<Cyclic>() + DirectSolverRows<Cyclic>() +
                             Rows<Cyclic>{
                                 {10, "cetol=(default)"},
                                 {0, "cetol=(default) timeIncrementationMethod=FIXED"},
                                 {265, "initialTerms=0"},
                                 {265, "initialTerms=100"},
                                 {266, "maxTerms=100"},
                                 {266, "maxTerms=0"},
                                 {269, "initialTerms=25"},
                                 {0, "initialTerms=98 maxTerms=99"},
                                 {271, "termsIncrement=0"},
                                 {272, "maxNumIterations=0"},
                                 {267, "minCycleInc=0"},
                                 {268, "maxCycleInc=0"},
                                 {270, "minCycleInc=1000"},
                                 {273, "damageExtrapolationTolerance=0"},
                             });
}

template <class T>
void ExpectExplicit() {
  ExpectValidity<T>("timePeriod=0.01", {6, 12, 13, 14, 76, 77, 145},
                    DirectSolverRows<T>() + Rows<T>{
                                                {77, "timePeriod=0"},
                                                {6, "timeIncrementationMethod=FIXED_USER_DEFINED_INC"},
                                                {6, "timeIncrementationMethod=FIXED_USER_DEFINED_INC userDefinedInc=0"},
                                                {0, "timeIncrementationMethod=FIXED_EBE maxIncrement=0"},
                                                {76, "timeIncrementationMethod=AUTOMATIC_EBE maxIncrement=0"},
                                                {76, "maxIncrement=0"},
                                                {12, "scaleFactor=0"},
                                                {13, "linearBulkViscosity=-1"},
                                                {14, "quadBulkViscosity=-1"},
                                                {0, "linearBulkViscosity=0 quadBulkViscosity=0"},
                                            });
}

TEST(GeneralProceduresTest, DynamicStepsRefuseFaultyIncrementsAndDamping) {
  using Implicit = kprC_ImplicitDynamicsStep;
  ExpectDirectlySolved<Implicit>(
      {41, 94, 274, 276}, QuasiNewtonRows<Implicit>() + Rows<Implicit>{
                                                            {41, "hafTolMethod=VALUE"},
                                                            {0, "hafTolMethod=VALUE haftol=1e3"},
                                                            {0, "hafTolMethod=VALUE nohaf=true"},
                                                            {0, "hafTolMethod=VALUE timeIncrementationMethod=FIXED"},
                                                            {0, "hafTolMethod=SCALE"},
                                                            {94, "alpha=0.01"},
                                                            {94, "alpha=-0.51"},
                                                            {0, "alpha=-0.5"},
                                                            {0, "alpha=0"},
                                                            {0, "isDefaultMaxInc=true maxInc=0"},
                                                            {83, "isDefaultMaxInc=true minInc=0.5"},
                                                        });
  ExpectExplicit<kprC_ExplicitDynamicsStep>();
  ExpectExplicit<kprC_TempDisplacementDynamicsStep>();

  using Subspace = kprC_SubspaceDynamicsStep;
  ExpectValidity<Subspace>(
      "incSize=0.1", {6, 47, 77, 145},
      DirectSolverRows<Subspace>() + Rows<Subspace>{{6, "incSize=0"}, {47, "vectors=0"}, {77, "timePeriod=0"}});
}

TEST(GeneralProceduresTest, FlowStepsRefuseFaultyIncrementsAndSolvers) {
  ExpectValidity<kprC_FlowStep>(
      "", {77, 78, 278, 279, 280, 281, 282, 283, 284, 285, 286, 287, 288, 290, 291, 292, 293, 294, 295, 296},
      {
          {77, "timePeriod=0"},
          {278, "initialInc=0"},
          {78, "initialInc=2"},
          {0, "initialInc=1"},
          {279, "maximumCFL=0"},
          {280, "incAdjustmentFreq=0"},
          {281, "stepGrowthFactor=0"},
          {0, "incrementation=FIXED_TIME maximumCFL=0 incAdjustmentFreq=0 stepGrowthFactor=0"},
          {282, "divergenceTol=0"},
          {283, "momIterationLimit=0"},
          {284, "momCheckingFreq=0"},
          {285, "momConvergenceLimit=0"},
          {286, "pressIterationLimit=0"},
          {287, "pressCheckingFreq=0"},
          {288, "pressConvergenceLimit=0"},
          {290, "transIterationLimit=0"},
          {291, "transCheckingFreq=0"},
          {292, "transConvergenceLimit=0"},
          {0, "pressureType=SSOR"},
          {293, "pressureType=SSOR pressSolverType=BCGS"},
          {0, "pressSolverType=FGMRES"},
          {294, "pressPreSweeps=5"},
          {295, "pressPostSweeps=0"},
          {0, "pressPreSweeps=1 pressPostSweeps=4"},
          {296, "turbulenceModel=VMS"},
          {0, "turbulenceModel=KEPS_RNG"},
      });
}

/// "A:Static nlgeom=ON, B:Flow!" is a model of two steps behind the initial one, B suppressed.
kprC_StepContainer Model(std::string const& plan) {
  kprC_StepContainer model;
  model.SetInitialStep("Initial", kprC_InitialStep());
  std::istringstream steps(plan);
  for (std::string step; std::getline(steps >> std::ws, step, ',');) {
    std::size_t const colon = step.find(':');
    std::size_t const end = std::min(step.find_first_of(" !"), step.size());
    std::string const className = "kprC_" + step.substr(colon + 1, end - colon - 1) + "Step";
    std::unique_ptr<cls_Persistent> object;
    for (auto const& [id, metadata] : cls_ClassRegistrar::Present().All()) {
      if (metadata->Name() == cow_String(className)) object.reset(metadata->New());
    }
    auto& analysis = dynamic_cast<kprC_AnalysisStep&>(*object);
    bool const suppressed = step.back() == '!';
    SetAttributes(analysis, step.substr(end, step.size() - end - (suppressed ? 1 : 0)));
    if (suppressed) analysis.Suppress();
    model.InsertAfter(model.LastStep(), cow_String(step.substr(0, colon)), analysis, true);
  }
  return model;
}

TEST(GeneralProceduresTest, NonlinearGeometryIsCarriedOverRealSteps) {
  struct Case {
    char const* plan;
    std::vector<bool> nonlinear;  // at the initial step and the others
  };
  for (auto const& [plan, nonlinear] : std::initializer_list<Case>{
           {"A:Static, B:Visco nlgeom=ON, C:Soils, D:ImplicitDynamics", {false, false, true, true, true}},
           {"A:Static nlgeom=ON, B:DirectCyclic, C:StaticRiks", {false, true, false, true}},
           {"A:Static nlgeom=ON, B:Frequency, C:Geostatic", {false, true, true, true}},
           {"A:Static!, B:Static, C:Static nlgeom=ON", {false, true, false, true}},
           {"A:HeatTransfer, B:CoupledThermalElectric", {false, false, false}},
           {"A:ExplicitDynamics nlgeom=ON, B:Anneal, C:TempDisplacementDynamics", {true, true, true, true}},
           {"A:ExplicitDynamics nlgeom=OFF, B:Anneal, C:TempDisplacementDynamics nlgeom=ON",
            {true, false, false, true}},
           {"A:Anneal, B:ExplicitDynamics nlgeom=OFF", {true, true, true}},
           {"A:CoupledTempDisplacement, B:ElecThermalStructural nlgeom=ON", {false, false, true}},
           {"A:SubspaceDynamics nlgeom=ON, B:UsaAddedMassGeneration", {false, true, true}},
           {"A:Flow", {false, true}},
           {"A:Flow!", {false, false}},
       }) {
    auto const model = Model(plan);
    std::vector<bool> found;
    for (cow_String const& name : model.Keys()) found.push_back(model.Nlgeom(name));
    EXPECT_EQ(found, nonlinear) << plan;
  }
}

TEST(GeneralProceduresTest, ProductAndFlowSettingsComeFromRealSteps) {
  using enum kprC_EnergyEquationEnm;
  using enum kprC_TurbulenceModelEnm;
  struct Case {
    char const* plan;
    kprC_AnalysisProductEnm product;
    kprC_EnergyEquationEnm energy;
    kprC_TurbulenceModelEnm turbulence;
  };
  for (auto const& [plan, product, energy, turbulence] : std::initializer_list<Case>{
           {"", UNDEFINED_ANALYSIS, ENERGY_NONE, TURB_NONE},
           {"A:Flow", CFD_ANALYSIS, ENERGY_NONE, TURB_NONE},
           {"A:Flow, B:Flow energyEquation=TEMPERATURE, C:Flow turbulenceModel=SPALART", CFD_ANALYSIS, TEMPERATURE,
            SPALART},
           {"A:Flow turbulenceModel=KEPS_RNG, B:Flow turbulenceModel=SPALART", CFD_ANALYSIS, ENERGY_NONE, KEPS_RNG},
           {"A:Flow turbulenceModel=KEPS_RNG!, B:Flow turbulenceModel=SPALART", CFD_ANALYSIS, ENERGY_NONE, SPALART},
           {"A:Flow energyEquation=TEMPERATURE, B:Static, C:Flow turbulenceModel=SPALART", CFD_ANALYSIS, TEMPERATURE,
            TURB_NONE},
           {"A:Static, B:Flow energyEquation=TEMPERATURE", STANDARD_ANALYSIS, ENERGY_NONE, TURB_NONE},
           {"A:Static!, B:Flow energyEquation=TEMPERATURE", CFD_ANALYSIS, TEMPERATURE, TURB_NONE},
           {"A:Anneal, B:Static", EXPLICIT_ANALYSIS, ENERGY_NONE, TURB_NONE},
           {"A:Anneal!, B:Static", STANDARD_ANALYSIS, ENERGY_NONE, TURB_NONE},
       }) {
    auto const model = Model(plan);
    EXPECT_EQ(model.AnalysisProduct(), product) << plan;
    EXPECT_EQ(model.EnergyEquation(), energy) << plan;
    EXPECT_EQ(model.TurbulenceModel(), turbulence) << plan;
  }
}

// A model is refused for the first step that is, then for its order.
TEST(GeneralProceduresTest, AModelOfRealStepsIsValidStepByStep) {
  std::string const heat = "A:HeatTransfer " + increments;
  auto const refusal = [](std::string const& plan) {
    auto const model = Model(plan);
    return Refusal([&] { model.AssertValid(); });
  };
  EXPECT_EQ(refusal(heat), "passes");
  EXPECT_EQ(refusal(heat + ", B:CoupledThermalElectric, C:Static"), WordsOf(74));
  EXPECT_EQ(refusal(heat + ", B:CoupledThermalElectric!"), "passes");
  EXPECT_EQ(Model(heat + ", B:CoupledThermalElectric!, C:Static").UnsuppressedKeys(),
            (cow_List<cow_String>{"Initial", "A", "C"}));
  EXPECT_EQ(refusal(heat + ", B:ExplicitDynamics"), WordsOf(53));
  EXPECT_EQ(refusal("A:ExplicitDynamics, B:Anneal, C:TempDisplacementDynamics"), "passes");
}

// The words of the enumerations differ: FIXED, FIXED_EBE; the procedures decide which of them matter.
TEST(GeneralProceduresTest, FixedIncrementsOfRealStepsCannotMeetGivenTimes) {
  auto const allowed = [](std::string const& step) {
    auto const model = Model("A:" + step);
    kprC_Step const& real = model.ConstGet("A");
    return std::pair(kprC_TimeMarksIsAllowed(real, true), kprC_NumberIntervalIsAllowed(real));
  };
  using Allowed = std::pair<bool, bool>;
  EXPECT_EQ(allowed("Soils timeIncrementationMethod=FIXED"), Allowed(false, false));
  EXPECT_EQ(allowed("Soils timeIncrementationMethod=FIXED response=STEADY_STATE"), Allowed(false, true));
  EXPECT_EQ(allowed("HeatTransfer timeIncrementationMethod=FIXED"), Allowed(false, false));
  EXPECT_EQ(allowed("HeatTransfer timeIncrementationMethod=FIXED response=STEADY_STATE"), Allowed(true, true));
  EXPECT_EQ(allowed("ImplicitDynamics timeIncrementationMethod=FIXED"), Allowed(false, true));
  EXPECT_EQ(allowed("ExplicitDynamics timeIncrementationMethod=FIXED_EBE"), Allowed(true, true));
  EXPECT_EQ(allowed("Geostatic"), Allowed(false, false));
}

}  // namespace
