#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "kprC_FrequencyStep.h"
#include "kprC_ModalDynamicsStep.h"
#include "kprC_StaticStep.h"
#include "kprC_StepList.h"
#include "kprC_Suppression.h"
#include "kprC_assert.h"
#include "kprC_stepUtils.h"
#include "nex_Exception.h"

namespace {

using Solver = kprC_Step::MatrixSolverEnm;
using Storage = kprC_Step::MatrixStorageEnm;

// The words of a refusal; "passes" if there is none.
template <class Action>
std::string Refusal(Action action) {
  try {
    action();
  } catch (nex_PrimException<atr_String, 1> const& refusal) {
    EXPECT_STREQ(refusal.File(), "TVOOdb/TVOOdbKprC.m/src/kprC_assert.cpp");
    return refusal.what();
  }
  return "passes";
}
std::string Words(int code) {
  return Refusal([code] { kprC_Assert(false, code); });
}

// A step of any procedure.
class AnyStep : public kprC_AnalysisStep {
 public:
  explicit AnyStep(unsigned int id) : procedureId(id) {}
  static constexpr unsigned int TypeId() { return kprC_Procedure::HeatTransfer; }
  static cls_AttributeTable const& Attributes() {
    static auto const table = cls_Describe<AnyStep, kprC_AnalysisStep>("AnyStep", 203)
                                  .Attribute("timeIncrementationMethod", &AnyStep::timeIncrementationMethod);
    return table;
  }
  unsigned int DynTypeId() const override { return procedureId; }
  cls_AttributeTable const& DynAttributes() const override { return Attributes(); }
  AnyStep* Copy() const override { return new AnyStep(*this); }

  unsigned int procedureId;
  ResponseEnm response = TRANSIENT;
  TimeIncrementationMethodEnm timeIncrementationMethod = FIXED;

 protected:
  ResponseEnm OwnResponse() const override { return response; }
  NlgeomEnm OwnNlgeom() const override { return ON; }
};

// A number whose fault shows after the change; 0 when the step passes. The changes of a ladder add up.
template <class Step>
struct Rung {
  int code;
  std::function<void(Step&)> change;
};

template <class Step>
void Climb(Step& step, std::initializer_list<Rung<Step>> ladder) {
  for (Rung<Step> const& rung : ladder) {
    rung.change(step);
    EXPECT_EQ(Refusal([&] { step.AssertValid(); }), rung.code == 0 ? "passes" : Words(rung.code)) << rung.code;
  }
}

// Every fault at once; each repair uncovers the next one.
TEST(StepsTest, StaticStepFindsFaultsInOrder) {
  using Step = kprC_StaticStep;
  Step step;
  step.solutionTechnique = Step::QUASI_NEWTON;
  step.matrixStorage = Storage::UNSYMMETRIC;
  step.maxNumInc = 0;
  step.reformKernel = -1;
  step.adaptiveDampingRatio = -1.0;
  step.timePeriod = 0.0;
  Climb<Step>(step, {
                        {275, [](Step& s) { s.matrixSolver = Solver::ITERATIVE; }},
                        {77, [](Step& s) { s.matrixSolver = Solver::DIRECT; }},
                        {74, [](Step& s) { s.timePeriod = 1.0; }},
                        {78, [](Step& s) { s.initialInc = 2.0; }},
                        {5, [](Step& s) { s.initialInc = 0.5; }},
                        {75, [](Step& s) { s.maxNumInc = 1; }},
                        {82, [](Step& s) { s.minInc = 0.6; }},
                        {83, [](Step& s) { s.maxInc = 0.6; }},
                        {81, [](Step& s) { s.minInc = s.maxInc = 0.1; }},
                        {80, [](Step& s) { s.maxInc = 1.5; }},
                        {276, [](Step& s) { s.maxInc = 1.0; }},
                        {274, [](Step& s) { s.matrixStorage = Storage::SYMMETRIC; }},
                        {253, [](Step& s) { s.reformKernel = 0; }},
                        {254,
                         [](Step& s) {
                           s.adaptiveDampingRatio = cls_NotGiven<double>;
                           s.continueDampingFactors = true;
                         }},
                        {0, [](Step& s) { s.adaptiveDampingRatio = 0.0; }},
                        {0, [](Step& s) { s.initialInc = s.minInc = s.maxInc = s.timePeriod; }},
                        {82, [](Step& s) { s.minInc = 5.0; }},
                        {0, [](Step& s) { s.timeIncrementationMethod = Step::FIXED; }},
                    });
  EXPECT_NE(Words(276).find("symmetrix"), std::string::npos);
  EXPECT_EQ(Refusal([] { Step().AssertValid(); }), Words(74));
}

TEST(StepsTest, FrequencyStepFindsFaultsInOrder) {
  using Step = kprC_FrequencyStep;
  Step step;
  EXPECT_EQ(step.matrixStorage, Storage::SYMMETRIC);
  EXPECT_EQ(Refusal([&] { step.AssertValid(); }), Words(160));
  step.numEigen = 0;
  step.matrixStorage = Storage::UNSYMMETRIC;
  step.propertyEvaluationFrequency = -1.0;
  step.firstCutoffMultiplier = 9.0;
  step.secondCutoffMultiplier = 1.0;
  step.residualModeRegion = {cow_String()};
  step.acousticRangeFactor = 0.0;
  step.normalization = Step::DISPLACEMENT;
  step.eigensolver = Step::AMS;
  Climb<Step>(step, {
                        {1, [](Step& s) { s.maxEigen = 0.0; }},
                        {2, [](Step& s) { s.maxEigen = cls_NotGiven<double>; }},
                        {145, [](Step& s) { s.numEigen = Step::allEigenvalues; }},
                        {95, [](Step& s) { s.matrixStorage = Storage::SYMMETRIC; }},
                        {241, [](Step& s) { s.propertyEvaluationFrequency = 0.0; }},
                        {242, [](Step& s) { s.secondCutoffMultiplier = 8.0; }},
                        {243, [](Step& s) { s.firstCutoffMultiplier = s.substructureCutoffMultiplier; }},
                        {244, [](Step& s) { s.secondCutoffMultiplier = 1.1; }},
                        {247, [](Step& s) { s.residualModeDof = {0}; }},
                        {248, [](Step& s) { s.residualModeRegion = {cow_String("tip")}; }},
                        {252, [](Step& s) { s.residualModeDof = {1}; }},
                        {245, [](Step& s) { s.acousticRangeFactor = 1.0; }},
                        {161, [](Step& s) { s.normalization = Step::MASS; }},
                        {0, [](Step& s) { s.maxEigen = 100.0; }},
                        {159, [](Step& s) { s.eigensolver = Step::SUBSPACE; }},
                        {3, [](Step& s) { s.numEigen = 10; }},
                        {4,
                         [](Step& s) {
                           s.vectors = 18;
                           s.maxIterations = 0;
                         }},
                        {245,
                         [](Step& s) {
                           s.eigensolver = Step::LANCZOS;
                           s.normalization = Step::DISPLACEMENT;
                           s.acousticCoupling = Step::AC_PROJECTION;
                           s.blockSize = s.maxBlocks = 0;
                         }},
                        {251, [](Step& s) { s.simLinearDynamics = false; }},
                        {87, [](Step& s) { s.acousticCoupling = Step::AC_OFF; }},
                        {88, [](Step& s) { s.blockSize = 1; }},
                        {0, [](Step& s) { s.maxBlocks = 1; }},
                        {89, [](Step& s) { s.eigensolver = static_cast<Step::EigensolverEnm>(3); }},
                    });
  EXPECT_FALSE(step.SimBased());
  step.eigensolver = Step::AMS;
  EXPECT_TRUE(step.SimBased());
}

TEST(StepsTest, ModalDynamicsAndItsDampingsFindFaults) {
  using Step = kprC_ModalDynamicsStep;
  Step step;
  step.timePeriod = 0.0;
  step.matrixSolver = Solver::ITERATIVE;
  Climb<Step>(step, {{6, [](Step& s) { s.amplitude = Step::RAMP; }},
                     {77, [](Step& s) { s.incSize = 0.1; }},
                     {145, [](Step& s) { s.timePeriod = 1.0; }},
                     {314, [](Step& s) { s.matrixSolver = Solver::DIRECT; }},
                     {0, [](Step& s) { s.amplitude = Step::STEP; }}});

  using Modes = kprC_RayleighDampingComponent;
  Modes modes;
  modes.beta = -1.0;
  Climb<Modes>(modes, {{18, [](Modes&) {}},
                       {19, [](Modes& m) { m.start = 2; }},
                       {20, [](Modes& m) { m.end = 1; }},
                       {22, [](Modes& m) { m.end = 2; }}});
  kprC_RayleighDamping damping;
  damping.components.Append(modes);
  EXPECT_EQ(Refusal([&] { damping.AssertValid(); }), Words(22));
}

TEST(StepsTest, AnswersComeFromTheClassOrItsField) {
  kprC_StaticStep step;
  EXPECT_EQ(step.Nlgeom(), kprC_Step::OFF);
  step.nlgeom = kprC_Step::ON;
  EXPECT_EQ(step.Nlgeom(), kprC_Step::ON);
  EXPECT_TRUE(step.AllowAdaptiveMeshDomains() && !step.Perturbation() && !step.IsAdiabatic());

  kprC_ModalDynamicsStep const modal;
  EXPECT_TRUE(modal.Perturbation() && !modal.AllowLoadCases());
  EXPECT_EQ(modal.Nlgeom(), kprC_Step::NOT_AVAILABLE);
  EXPECT_EQ(modal.ProcedureType(), kprC_Procedure::ModalDynamics);

  // The row overrules the field where it has an answer of its own.
  EXPECT_EQ(AnyStep(kprC_Procedure::HeatTransfer).Response(), kprC_Step::TRANSIENT);
  EXPECT_EQ(AnyStep(kprC_Procedure::Soils).Response(), kprC_Step::TRANSIENT);
  EXPECT_EQ(AnyStep(kprC_Procedure::Visco).Response(), kprC_Step::NOT_APPLICABLE);
  EXPECT_EQ(AnyStep(kprC_Procedure::DirectCyclic).Nlgeom(), kprC_Step::ALWAYS_OFF);
}

TEST(StepsTest, InitialStepIsNeverSuppressed) {
  kprC_InitialStep step;
  EXPECT_EQ(Refusal([&] { step.Suppress(); }), "The Initial step cannot be suppressed.");
  step.Resume();
  step.AssertValid();
  EXPECT_FALSE(step.suppress);
  EXPECT_EQ(step.ProcedureType(), 1U);
  EXPECT_EQ(step.Nlgeom(), kprC_Step::NOT_AVAILABLE);
  EXPECT_FALSE(step.Perturbation() || step.Explicit() || kprC_Step::Perturbation(step.ProcedureType()));
}

TEST(StepsTest, UserAndStepSuppressIndependently) {
  auto state = RESUMED;
  auto const userResumes = [&] { kprC_ResumePropagatingAttribute(false, state); };
  kprC_SuppressPropagatingAttribute(true, state, false);
  EXPECT_EQ(Refusal(userResumes), "Cannot resume while the step is still suppressed.  Resume the step first.");
  EXPECT_EQ(state, SUPPRESSED_STEP);
  kprC_SuppressPropagatingAttribute(false, state, false);
  EXPECT_EQ(Refusal(userResumes), Words(259));
  EXPECT_EQ(state, SUPPRESSED_BOTH);
  kprC_ResumePropagatingAttribute(true, state);
  EXPECT_EQ(state, SUPPRESSED_ATTRIBUTE);
  kprC_ResumePropagatingAttribute(true, state);
  EXPECT_EQ(state, SUPPRESSED_ATTRIBUTE);
  kprC_SuppressPropagatingAttribute(true, state, true);
  EXPECT_EQ(state, SUPPRESSED_BOTH);
  // To keep turns the step's suppression into the user's, who may then resume.
  kprC_SuppressPropagatingAttribute(false, state, true);
  EXPECT_EQ(state, SUPPRESSED_ATTRIBUTE);
  EXPECT_EQ(Refusal(userResumes), "passes");
  EXPECT_EQ(state, RESUMED);
}

TEST(StepsTest, FirstActiveStepDecidesTheProduct) {
  kprC_StepList steps;
  EXPECT_EQ(kprC_AnalysisProduct(steps), UNDEFINED_ANALYSIS);
  steps.Append({"Initial", kprC_StepHolder(new kprC_InitialStep())});
  EXPECT_EQ(kprC_AnalysisProduct(steps), UNDEFINED_ANALYSIS);
  steps.Append({"Empty", kprC_StepHolder()});
  steps.Append({"Blast", kprC_StepHolder(new AnyStep(kprC_Procedure::ExplicitDynamics))});
  steps.Append({"Flow", kprC_StepHolder(new AnyStep(kprC_Procedure::Flow))});
  steps.Append({"Modes", kprC_StepHolder(new kprC_FrequencyStep())});

  EXPECT_EQ(kprC_AnalysisProduct(steps), EXPLICIT_ANALYSIS);
  steps.Get(2).procedure.Get().Suppress();
  EXPECT_EQ(kprC_AnalysisProduct(steps), CFD_ANALYSIS);
  steps.Get(3).procedure.Get().Suppress();
  EXPECT_EQ(kprC_AnalysisProduct(steps), STANDARD_ANALYSIS);
  EXPECT_EQ(kprC_FirstGeneralAnalysisType(steps), kprC_Procedure::Frequency);
  steps.Get(4).procedure.Get().Suppress();
  EXPECT_EQ(kprC_AnalysisProduct(steps), UNDEFINED_ANALYSIS);
  EXPECT_EQ(kprC_FirstGeneralAnalysisType(steps), 0U);
}

TEST(StepsTest, FixedIncrementsCannotMeetGivenTimes) {
  kprC_StaticStep statics;
  EXPECT_TRUE(kprC_TimeMarksIsAllowed(statics, false));
  statics.timeIncrementationMethod = kprC_Step::FIXED;
  EXPECT_FALSE(kprC_TimeMarksIsAllowed(statics, false));
  // Without a transient response the increments do not matter to intervals.
  EXPECT_TRUE(kprC_NumberIntervalIsAllowed(statics));

  AnyStep heat(kprC_Procedure::HeatTransfer);
  EXPECT_FALSE(kprC_TimeMarksConsistency(heat, true) || kprC_NumberIntervalIsAllowed(heat));
  heat.response = kprC_Step::STEADY_STATE;
  EXPECT_TRUE(kprC_TimeMarksConsistency(heat, true) && kprC_NumberIntervalIsAllowed(heat));

  // No attribute to look at, and a class whose fixed increments end at given times anyway.
  EXPECT_TRUE(kprC_TimeMarksConsistency(kprC_ModalDynamicsStep(), false));
  AnyStep const explicitStep(kprC_Procedure::ExplicitDynamics);
  EXPECT_TRUE(kprC_TimeMarksIsAllowed(explicitStep, true) && !kprC_TimeMarksIsAllowed(explicitStep, false));
}

TEST(StepsTest, CatalogueAnswersEveryNumber) {
  EXPECT_EQ(Words(0), "Change rate must be greater than zero");
  EXPECT_EQ(Words(35), Words(46));
  for (int const code : {309, 319, 100000, -1}) EXPECT_EQ(Words(code), "") << code;
  EXPECT_EQ(Words(318), "Sensor name must be a name of the active Sensor History Output.");
  EXPECT_EQ(Refusal([] { kprC_Assert(true, kprC_ErrorEnm(53)); }), "passes");
}

}  // namespace
