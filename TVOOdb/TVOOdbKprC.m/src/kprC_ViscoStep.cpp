#include "kprC_ViscoStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_ViscoStep::Attributes() {
  using Self = kprC_ViscoStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_ViscoStep", 1563)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("integration", &Self::integration)
                                .Attribute("cetol", &Self::cetol)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("stabilizationMagnitude", &Self::stabilizationMagnitude)
                                .Attribute("stabilizationMethod", &Self::stabilizationMethod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("reformKernel", &Self::reformKernel)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Attribute("adaptiveDampingRatio", &Self::adaptiveDampingRatio)
                                .Attribute("continueDampingFactors", &Self::continueDampingFactors)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_ViscoStep::AssertValid() const {
  kprC_AssertSolverTakes(*this, stabilizationMethod != NONE);
  AssertIncrements();
  kprC_Assert(timeIncrementationMethod != AUTOMATIC || kprC_IsGivenPositive(cetol), 34);
  kprC_AssertQuasiNewton(*this, reformKernel);
  kprC_AssertDampingRatio(*this);
}
