#include "kprC_RandomResponseFrequency.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_RandomResponseFrequency::Attributes() {
  using Self = kprC_RandomResponseFrequency;
  static auto const table = cls_Describe<Self>("kprC_RandomResponseFrequency", 203)
                                .Attribute("upper", &Self::upper)
                                .Attribute("lower", &Self::lower)
                                .Attribute("nCalcs", &Self::nCalcs)
                                .Attribute("bias", &Self::bias)
                                .Constructor("RandomResponseFrequency");
  return table;
}

void kprC_RandomResponseFrequency::AssertValid() const {
  AssertPointsBetweenModes(nCalcs, 35);
  kprC_Assert(lower >= 0.0 && upper > lower, 36);
  AssertBias();
}
