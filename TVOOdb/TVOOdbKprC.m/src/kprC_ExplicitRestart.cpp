#include "kprC_ExplicitRestart.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_ExplicitRestart::Attributes() {
  using Self = kprC_ExplicitRestart;
  static auto const table = cls_Describe<Self, kprC_Restart>("kprC_ExplicitRestart", 302)
                                .Attribute("numberIntervals", &Self::numberIntervals)
                                .Attribute("timeMarks", &Self::timeMarks);
  return table;
}

void kprC_ExplicitRestart::AssertValid() const { kprC_Assert(numberIntervals > 0, 122); }
