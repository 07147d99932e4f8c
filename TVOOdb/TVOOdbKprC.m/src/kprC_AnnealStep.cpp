#include "kprC_AnnealStep.h"

cls_AttributeTable const& kprC_AnnealStep::Attributes() {
  using Self = kprC_AnnealStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_AnnealStep", 831)
                                .Attribute("refTemp", &Self::refTemp)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Constructor(constructorCmd());
  return table;
}
