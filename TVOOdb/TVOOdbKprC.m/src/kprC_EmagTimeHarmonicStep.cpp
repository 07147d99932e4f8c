#include "kprC_EmagTimeHarmonicStep.h"

cls_AttributeTable const& kprC_EmagTimeHarmonicStep::Attributes() {
  using Self = kprC_EmagTimeHarmonicStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_EmagTimeHarmonicStep", 1554)
                                .Attribute("frequencyRange", &Self::frequencyRange)
                                .Attribute("scale", &Self::scale)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_EmagTimeHarmonicStep::AssertValid() const { AssertFrequencies(309); }
