#include "kprC_SteadyStateDirectFrequency.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_SteadyStateDirectFrequency::Attributes() {
  using Self = kprC_SteadyStateDirectFrequency;
  static auto const table = cls_Describe<Self>("kprC_SteadyStateDirectFrequency", 203)
                                .Attribute("upper", &Self::upper)
                                .Attribute("lower", &Self::lower)
                                .Attribute("nPoints", &Self::nPoints)
                                .Attribute("bias", &Self::bias)
                                .Constructor("SteadyStateDirectFrequency");
  return table;
}

void kprC_SteadyStateDirectFrequency::AssertValid() const {
  kprC_Assert(nPoints > 0, 42);
  AssertRangeOrSingleFrequency();
  AssertBias();
}
