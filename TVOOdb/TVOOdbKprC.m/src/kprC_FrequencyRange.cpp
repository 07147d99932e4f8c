#include "kprC_FrequencyRange.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_FrequencyRange::Attributes() {
  using Self = kprC_FrequencyRange;
  static auto const table = cls_Describe<Self>("kprC_FrequencyRange", 1522)
                                .Attribute("upper", &Self::upper)
                                .Attribute("lower", &Self::lower)
                                .Constructor("FrequencyRange");
  return table;
}

void kprC_FrequencyRange::AssertValid() const {
  kprC_Assert(lower >= 0.0 && upper >= 0.0, 312);
  kprC_Assert(lower < upper, 303);
}
