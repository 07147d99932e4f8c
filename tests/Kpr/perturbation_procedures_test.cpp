#include "../Validity.h"

#include "kprC_BuckleStep.h"
#include "kprC_ComplexFrequencyStep.h"
#include "kprC_EmagTimeHarmonicStep.h"
#include "kprC_RandomResponseStep.h"
#include "kprC_ReducedBasisGenerateStep.h"
#include "kprC_ResponseSpectrumStep.h"
#include "kprC_StaticLinearPerturbationStep.h"
#include "kprC_SteadyStateDirectStep.h"
#include "kprC_SteadyStateModalStep.h"
#include "kprC_SteadyStateSubspaceStep.h"
#include "kprC_SubstructureGenerateStep.h"

namespace {

TEST(PerturbationProceduresTest, StepsThatFindModesRefuse) {
  using Frequency = kprC_FrequencyStep;
  ExpectValidity<Frequency>(
      "numEigen=3", {1, 2, 3, 4, 87, 88, 89, 95, 145, 159, 160, 161, 241, 242, 243, 244, 245, 247, 248, 251, 252},
      {{1, "maxEigen=0"},
       {2, "numEigen=0"},
       {145, "matrixSolver=ITERATIVE"},
       {145, "matrixStorage=UNSYMMETRIC"},
       {95, "propertyEvaluationFrequency=-1"},
       {0, "propertyEvaluationFrequency=0"},
       {241, "secondCutoffMultiplier=1"},
       {242, "firstCutoffMultiplier=5.5"},
       {0, "firstCutoffMultiplier=5"},
       {243, "secondCutoffMultiplier=1.8"},
       {0, "secondCutoffMultiplier=1.7"},
       {244, "residualModeRegion=tip"},
       {247,
        [](Frequency& step) {
          step.residualModeRegion = {cow_String()};
          step.residualModeDof = {1};
        }},
       {248, "residualModeRegion=tip,root residualModeDof=1,0"},
       {252, "eigensolver=AMS acousticRangeFactor=0"},
       {245, "eigensolver=AMS normalization=DISPLACEMENT"},
       {161, "eigensolver=AMS"},
       {0, "eigensolver=AMS maxEigen=100 blockSize=0"},
       {159, "eigensolver=SUBSPACE numEigen=(default)"},
       {3, "eigensolver=SUBSPACE"},
       {4, "eigensolver=SUBSPACE vectors=9 maxIterations=0"},
       {0, "eigensolver=SUBSPACE vectors=9 normalization=DISPLACEMENT"},
       {245, "normalization=DISPLACEMENT"},
       {251, "simLinearDynamics=false acousticCoupling=AC_PROJECTION"},
       {0, "simLinearDynamics=false normalization=DISPLACEMENT"},
       {160, "numEigen=(default)"},
       {0, "numEigen=(default) maxEigen=100"},
       {87, "blockSize=0"},
       {88, "maxBlocks=0"},
       {89, [](Frequency& step) { step.eigensolver = static_cast<kprC_Step::EigensolverEnm>(3); }}});
  // The subspace's vectors and the blocks of the other method matter with their solver alone.
  ExpectValidity<kprC_BuckleStep>("numEigen=3 vectors=9", {1, 2, 3, 87, 89, 145},
                                  {{1, "maxEigen=-1"},
                                   {2, "numEigen=0"},
                                   {3, "vectors=0"},
                                   {0, "vectors=0 eigensolver=LANCZOS"},
                                   {87, "blockSize=0 eigensolver=LANCZOS"},
                                   {0, "blockSize=0"},
                                   {89, "eigensolver=AMS"},
                                   {145, "matrixSolver=ITERATIVE"}});
  ExpectValidity<kprC_ComplexFrequencyStep>(
      "", {1, 2, 145}, {{1, "maxEigen=0"}, {2, "numEigen=0"}, {0, "numEigen=5"}, {145, "matrixSolver=ITERATIVE"}});
}

template <class Damping>
void Fill(cow_COW<Damping, cow_Virtual<Damping>>& holder) {
  holder = new Damping();
}

TEST(PerturbationProceduresTest, StepsThatUseModesRefuse) {
  ExpectValidity<kprC_ModalDynamicsStep>(
      "incSize=0.1", {6, 77, 145, 314},
      {{6, "incSize=0"}, {77, "timePeriod=0"}, {145, "matrixSolver=ITERATIVE"}, {314, "amplitude=RAMP"}});
  ExpectValidity<kprC_RandomResponseStep>("", {145}, {{145, "matrixSolver=ITERATIVE"}, {0, "freq=nCalcs=-1"}});

  using Spectrum = kprC_ResponseSpectrumStep;
  auto const damped = [](auto first, auto second) {
    return [=](Spectrum& step) {
      Fill(step.*first);
      Fill(step.*second);
    };
  };
  ExpectValidity<Spectrum>("components=spectrum=Site", {38, 145, 165, 302},
                           {{0, "components=x=1;y=1;z=1"},
                            {38, "components=x=1;y=1;z=1;z=-1"},
                            {145, "matrixSolver=ITERATIVE"},
                            {165, damped(&Spectrum::directDamping, &Spectrum::rayleighDampingByFrequency)},
                            {165, damped(&Spectrum::rayleighDamping, &Spectrum::directDampingByFrequency)},
                            {165, damped(&Spectrum::compositeDamping, &Spectrum::directDampingByFrequency)},
                            {0, damped(&Spectrum::compositeDamping, &Spectrum::directDamping)},
                            {0, damped(&Spectrum::directDampingByFrequency, &Spectrum::rayleighDampingByFrequency)},
                            {302, "summation=DSC"},
                            {302, "summation=DSC components=timeDuration=2;timeDuration=0"},
                            {0, "summation=DSC components=timeDuration=2;timeDuration=3"}});
}

TEST(PerturbationProceduresTest, StepsThatSweepFrequenciesRefuse) {
  char const* const sweep = "frequencyRange=lower=1,upper=100;lower=100,upper=500,nPoints=5";
  ExpectValidity<kprC_SteadyStateDirectStep>(
      sweep, {45}, {{45, "frequencyRange="}, {0, "frequencyRange=nPoints=-1"}, {0, "matrixSolver=ITERATIVE"}});
  ExpectValidity<kprC_SteadyStateModalStep>(sweep, {45, 145},
                                            {{45, "frequencyRange="}, {145, "matrixSolver=ITERATIVE"}});
  ExpectValidity<kprC_SteadyStateSubspaceStep>(sweep, {45, 145, 162},
                                               {{45, "frequencyRange="},
                                                {145, "matrixSolver=ITERATIVE"},
                                                {162, "maxDampingChange=0"},
                                                {0, "maxStiffnessChange=0"}});
  ExpectValidity<kprC_EmagTimeHarmonicStep>(sweep, {309}, {{309, "frequencyRange="}});
}

TEST(PerturbationProceduresTest, OtherStepsRefuse) {
  ExpectValidity<kprC_StaticLinearPerturbationStep>("", {}, {{0, "solutionTechnique=LCP_CONTACT"}});
  ExpectValidity<kprC_ReducedBasisGenerateStep>("", {}, {{0, "matrixSolver=ITERATIVE"}});
  ExpectValidity<kprC_SubstructureGenerateStep>("substructureIdentifier=1", {308},
                                                {{308, "substructureIdentifier=0"},
                                                 {308, "substructureIdentifier=10000"},
                                                 {0, "substructureIdentifier=9999"},
                                                 {0, "modeRange=start=5"}});
  kprC_StaticLinearPerturbationStep contact;
  contact.solutionTechnique = kprC_Step::LCP_CONTACT;
  EXPECT_EQ(static_cast<kprC_AnalysisStep const&>(contact).SolutionTechnique(), kprC_Step::LCP_CONTACT);
}

TEST(PerturbationProceduresTest, RangesOfFrequenciesAndModesRefuse) {
  ExpectValidity<kprC_RandomResponseFrequency>("lower=1 upper=100", {35, 36, 44},
                                               {{35, "nCalcs=1"},
                                                {0, "nCalcs=2"},
                                                {36, "lower=-1"},
                                                {36, "lower=100"},
                                                {36, "upper=0"},
                                                {0, "lower=0"},
                                                {44, "bias=0"},
                                                {0, "bias=0.5"}});
  std::vector<std::pair<int, char const*>> const steadyState{
      {43, "lower=-1"}, {43, "lower=101"}, {0, "lower=100"}, {0, "upper=0"}, {44, "bias=0"}};
  auto const withPoints = [&]<class Range>(Range const&, std::vector<ValidityRow<Range>> rows, int points) {
    for (auto const& [code, edit] : steadyState) rows.push_back({code, edit});
    ExpectValidity<Range>("lower=1 upper=100", {43, 44, points}, rows);
  };
  using Modal = kprC_SteadyStateModalFrequency;
  using Subspace = kprC_SteadyStateSubspaceFrequency;
  using Direct = kprC_SteadyStateDirectFrequency;
  withPoints(Direct(), std::vector<ValidityRow<Direct>>{{42, "nPoints=0"}, {0, "nPoints=1"}}, 42);
  withPoints(Modal(), std::vector<ValidityRow<Modal>>{{46, "nPoints=1"}, {0, "nPoints=2"}}, 46);
  withPoints(Subspace(), std::vector<ValidityRow<Subspace>>{{46, "nPoints=1"}, {0, "nPoints=2"}}, 46);
  ExpectValidity<kprC_EmagTimeHarmonicFrequency>("lower=1 upper=100", {310, 311, 312, 44},
                                                 {{310, "nPoints=1"},
                                                  {0, "nPoints=2"},
                                                  {311, "lower=101"},
                                                  {0, "lower=100"},
                                                  {312, "lower=-1"},
                                                  {312, "lower=-2 upper=-1"},
                                                  {44, "bias=0"}});
  ExpectValidity<kprC_FrequencyRange>("lower=1 upper=100", {303, 312},
                                      {{303, "lower=100"}, {312, "lower=-1"}, {0, "lower=0"}});
  ExpectValidity<kprC_ModeRange>(
      "start=2 end=8", {304, 305, 306, 307},
      {{304, "start=9"}, {0, "start=8"}, {305, "start=0"}, {306, "end=0"}, {307, "increment=0"}});
  ExpectValidity<kprC_RetainedDofs>("region=Base dofs=1,2", {248}, {{248, "dofs=1,0"}, {0, "dofs="}});
  ExpectValidity<kprC_ResponseSpectrumComponent>(
      "spectrum=Site", {37, 39, 301},
      {{37, "spectrum="}, {39, "scale=0"}, {301, "timeDuration=-1"}, {0, "timeDuration=0"}});
}

/// A damping refuses what one of its components refuses, and nothing else.
template <class Damping>
void ExpectDamping(char const* valid, std::set<int> const& listed,
                   std::vector<std::pair<int, char const*>> const& edits) {
  using Component = std::remove_cvref_t<decltype(Damping().components.First())>;
  std::vector<ValidityRow<Component>> rows;
  std::vector<ValidityRow<Damping>> rowsOfDamping{{0, [](Damping& damping) { damping.components.Clear(); }}};
  for (auto const& [code, edit] : edits) {
    rows.push_back({code, edit});
    rowsOfDamping.push_back(
        {code, [edit = edit](Damping& damping) { SetAttributes(damping.components.Get(1), edit); }});
  }
  ExpectValidity<Component>(valid, listed, rows);
  ExpectValidity<Damping>(
      [valid](Damping& damping) {
        Component component;
        SetAttributes(component, valid);
        damping.components.Append(component);
        damping.components.Append(component);
      },
      listed, rowsOfDamping);
}

TEST(PerturbationProceduresTest, DampingsRefuse) {
  using Edits = std::vector<std::pair<int, char const*>>;
  Edits const modes{{18, "start=0"}, {19, "end=0"}, {20, "start=9"}, {0, "start=8"}};
  Edits const frequency{{164, "frequency=-1"}, {0, "frequency=0"}};
  auto const with = [](Edits edits, int code, char const* edit) {
    edits.push_back({code, edit});
    return edits;
  };
  char const* const someModes = "start=2 end=8";
  ExpectDamping<kprC_CompositeDamping>(someModes, {18, 19, 20}, modes);
  ExpectDamping<kprC_DirectDamping>(someModes, {18, 19, 20, 21}, with(modes, 21, "fraction=-0.1"));
  ExpectDamping<kprC_RayleighDamping>(someModes, {18, 19, 20, 22}, with(modes, 22, "beta=-0.1"));
  ExpectDamping<kprC_StructuralDamping>(someModes, {18, 19, 20, 24}, with(modes, 24, "factor=-0.1"));
  ExpectDamping<kprC_DirectDampingByFrequency>("", {164, 21}, with(frequency, 21, "fraction=-0.1"));
  ExpectDamping<kprC_RayleighDampingByFrequency>("", {164, 22}, with(frequency, 22, "beta=-0.1"));
  ExpectDamping<kprC_StructuralDampingByFrequency>("", {164, 24}, with(frequency, 24, "factor=-0.1"));
}

TEST(PerturbationProceduresTest, ListsOfObjectsAreTypedByTheirValues) {
  kprC_SubstructureGenerateStep step;
  cls_Attribute const& retained = *step.DynAttributes().Find("retainedDofsList");
  std::string const typed = "region=Top face,dofs=1,2,6;region=Tip,dofs=";
  EXPECT_TRUE(retained.SetText(step, typed));
  EXPECT_EQ(retained.Text(step), typed);
  EXPECT_EQ(step.retainedDofsList[0].dofs, (cow_List<int>{1, 2, 6}));
  EXPECT_EQ(step.retainedDofsList[1].region.Text(), "Tip");
  for (char const* const wrong : {"Base", "region=Base;dofs=x", "size=3", "region=Base,1,dofs=1,a"}) {
    EXPECT_FALSE(retained.SetText(step, wrong)) << wrong;
    EXPECT_EQ(retained.Text(step), typed) << wrong;
  }
  // What scripts do not make by itself has no such form.
  kprC_DirectDamping damping;
  cls_Attribute const& components = *damping.DynAttributes().Find("components");
  EXPECT_FALSE(components.SetText(damping, "start=1"));
  EXPECT_STREQ(components.Expected(), "no text: objects stand here");
}

}  // namespace
