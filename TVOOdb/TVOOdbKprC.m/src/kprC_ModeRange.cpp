#include "kprC_ModeRange.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_ModeRange::Attributes() {
  using Self = kprC_ModeRange;
  static auto const table = cls_Describe<Self>("kprC_ModeRange", 1522)
                                .Attribute("start", &Self::start)
                                .Attribute("end", &Self::end)
                                .Attribute("increment", &Self::increment)
                                .Constructor("ModeRange");
  return table;
}

void kprC_ModeRange::AssertValid() const {
  kprC_Assert(start >= 1, 305);
  kprC_Assert(end >= 1, 306);
  kprC_Assert(start <= end, 304);
  kprC_Assert(increment >= 1, 307);
}
