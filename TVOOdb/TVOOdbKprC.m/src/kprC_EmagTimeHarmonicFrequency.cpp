#include "kprC_EmagTimeHarmonicFrequency.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_EmagTimeHarmonicFrequency::Attributes() {
  using Self = kprC_EmagTimeHarmonicFrequency;
  static auto const table = cls_Describe<Self>("kprC_EmagTimeHarmonicFrequency", 1554)
                                .Attribute("upper", &Self::upper)
                                .Attribute("lower", &Self::lower)
                                .Attribute("nPoints", &Self::nPoints)
                                .Attribute("bias", &Self::bias)
                                .Constructor("EmagTimeHarmonicFrequency");
  return table;
}

void kprC_EmagTimeHarmonicFrequency::AssertValid() const {
  kprC_Assert(nPoints > 1, 310);
  kprC_Assert(lower >= 0.0 && upper >= 0.0, 312);
  kprC_Assert(upper >= lower, 311);
  AssertBias();
}
