#include "kprC_MassDiffusionStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_MassDiffusionStep::Attributes() {
  using Self = kprC_MassDiffusionStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_MassDiffusionStep", 831)
                                .Attribute("response", &Self::response)
                                .Attribute("end", &Self::end)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("dcmax", &Self::dcmax)
                                .Attribute("amplitude", &Self::amplitude)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_MassDiffusionStep::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  AssertIncrements();
  kprC_Assert(end > 0.0, 17);
}
