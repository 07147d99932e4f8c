#include "kprC_ResponseSpectrumStep.h"

#include "kprC_assert.h"

cls_AttributeTable const& kprC_ResponseSpectrumStep::Attributes() {
  using Self = kprC_ResponseSpectrumStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_ResponseSpectrumStep", 831)
                                .Attribute("comp", &Self::comp)
                                .Attribute("summation", &Self::summation)
                                .Attribute("components", &Self::components)
                                .Attribute("directDamping", &Self::directDamping)
                                .Attribute("rayleighDamping", &Self::rayleighDamping)
                                .Attribute("compositeDamping", &Self::compositeDamping)
                                .Attribute("directDampingByFrequency", &Self::directDampingByFrequency)
                                .Attribute("rayleighDampingByFrequency", &Self::rayleighDampingByFrequency)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Constructor(constructorCmd());
  return table;
}

bool kprC_ResponseSpectrumStep::MixesModesAndFrequencies() const {
  bool const byModes = compositeDamping.HasValue() || directDamping.HasValue() || rayleighDamping.HasValue();
  return byModes && (directDampingByFrequency.HasValue() || rayleighDampingByFrequency.HasValue());
}

void kprC_ResponseSpectrumStep::AssertValid() const {
  kprC_Assert(components.Length() <= 3, 38);
  kprC_Assert(!MixesModesAndFrequencies(), 165);
  if (summation == DSC) {
    for (kprC_ResponseSpectrumComponent const& component : components) kprC_Assert(component.timeDuration > 0.0, 302);
  }
  kprC_Assert(matrixSolver == MatrixSolverEnm::DIRECT, 145);
}
