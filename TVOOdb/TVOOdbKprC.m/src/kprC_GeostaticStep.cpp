#include "kprC_GeostaticStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_GeostaticStep::Attributes() {
  using Self = kprC_GeostaticStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_GeostaticStep", 1856)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("utol", &Self::utol)
                                .Attribute("reformKernel", &Self::reformKernel)
                                .Attribute("solutionTechnique", &Self::solutionTechnique)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_GeostaticStep::AssertValid() const {
  kprC_AssertSolverTakes(*this);
  AssertIncrements({.maxIncWithinPeriod = false});
  kprC_Assert(timeIncrementationMethod == AUTOMATIC || utol == cls_NotGiven<double>, 28);
  kprC_Assert(utol > 0.0, 27);
  kprC_AssertQuasiNewtonStorage(*this);
}
