#include "kprC_StaticLinearPerturbationStep.h"

cls_AttributeTable const& kprC_StaticLinearPerturbationStep::Attributes() {
  using Self = kprC_StaticLinearPerturbationStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_StaticLinearPerturbationStep", 2402)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Attribute("gapDistance", &Self::gapDistance)
                                .Attribute("scaleFactor", &Self::scaleFactor)
                                .Constructor(constructorCmd());
  return table;
}
