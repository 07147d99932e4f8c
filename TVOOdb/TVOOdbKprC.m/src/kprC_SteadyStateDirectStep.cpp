#include "kprC_SteadyStateDirectStep.h"

cls_AttributeTable const& kprC_SteadyStateDirectStep::Attributes() {
  using Self = kprC_SteadyStateDirectStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_SteadyStateDirectStep", 1045)
                                .Attribute("frequencyRange", &Self::frequencyRange)
                                .Attribute("scale", &Self::scale)
                                .Attribute("factorization", &Self::factorization)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("subdivideUsingEigenfrequencies", &Self::subdivideUsingEigenfrequencies)
                                .Attribute("frictionDamping", &Self::frictionDamping)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_SteadyStateDirectStep::AssertValid() const { AssertFrequencies(45); }
