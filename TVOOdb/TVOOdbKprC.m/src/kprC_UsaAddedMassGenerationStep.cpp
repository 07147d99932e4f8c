#include "kprC_UsaAddedMassGenerationStep.h"

cls_AttributeTable const& kprC_UsaAddedMassGenerationStep::Attributes() {
  using Self = kprC_UsaAddedMassGenerationStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_UsaAddedMassGenerationStep", 831)
                                .Attribute("nlgeom", &Self::nlgeom)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Constructor(constructorCmd());
  return table;
}
