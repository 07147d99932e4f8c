#include "kprC_CoupledTempDisplacementStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_CoupledTempDisplacementStep::Attributes() {
  using Self = kprC_CoupledTempDisplacementStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_CoupledTempDisplacementStep", 1563)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("response", &Self::response)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("stabilizationMagnitude", &Self::stabilizationMagnitude)
                                .Attribute("stabilizationMethod", &Self::stabilizationMethod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("deltmx", &Self::deltmx)
                                .Attribute("cetol", &Self::cetol)
                                .Attribute("creepIntegration", &Self::creepIntegration)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Attribute("adaptiveDampingRatio", &Self::adaptiveDampingRatio)
                                .Attribute("continueDampingFactors", &Self::continueDampingFactors)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_CoupledTempDisplacementStep::AssertValid() const {
  kprC_CoupledStructuralStep::AssertValid();
  kprC_Assert(creepIntegration >= IMPLICIT_EXPLICIT && creepIntegration <= IMPLICIT, 93);
}
