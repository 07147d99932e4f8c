#include "kprC_SoilsStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_SoilsStep::Attributes() {
  using Self = kprC_SoilsStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_SoilsStep", 1563)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("response", &Self::response)
                                .Attribute("end", &Self::end)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("stabilizationMagnitude", &Self::stabilizationMagnitude)
                                .Attribute("stabilizationMethod", &Self::stabilizationMethod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("creepBehavior", &Self::creepBehavior)
                                .Attribute("cetol", &Self::cetol)
                                .Attribute("utol", &Self::utol)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("reformKernel", &Self::reformKernel)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Attribute("adaptiveDampingRatio", &Self::adaptiveDampingRatio)
                                .Attribute("continueDampingFactors", &Self::continueDampingFactors)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_SoilsStep::AssertValid() const {
  kprC_AssertSolverTakes(*this, stabilizationMethod != NONE);
  AssertIncrements({.noInitialInc = timeIncrementationMethod == FIXED ? 6 : 74});
  AssertTolerances();
  kprC_AssertQuasiNewton(*this, reformKernel);
  kprC_AssertDamping(*this);
}

void kprC_SoilsStep::AssertTolerances() const {
  if (timeIncrementationMethod != AUTOMATIC) return;
  if (response == SoilsResponseEnm::STEADY_STATE) {
    // Pore pressure does not change in time; creep strain does.
    kprC_Assert(!creepBehavior || kprC_IsGivenPositive(cetol), 34);
  } else if (creepBehavior) {
    kprC_Assert(kprC_IsGivenPositive(cetol) || kprC_IsGivenPositive(utol), 25);
  } else {
    kprC_Assert(kprC_IsGivenPositive(utol), 26);
  }
}

kprC_Step::ResponseEnm kprC_SoilsStep::OwnResponse() const {
  return response == SoilsResponseEnm::STEADY_STATE ? STEADY_STATE : TRANSIENT;
}
