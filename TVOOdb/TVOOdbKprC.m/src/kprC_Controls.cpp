#include "kprC_Controls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_Controls::Attributes() {
  static auto const table = cls_Describe<kprC_Controls>("kprC_Controls", 302)
                                .Attribute("allowPropagation", &kprC_Controls::allowPropagation)
                                .Attribute("resetDefaultValues", &kprC_Controls::resetDefaultValues);
  return table;
}

void kprC_Controls::AssertValid() const { kprC_Assert(!(allowPropagation && resetDefaultValues), 103); }
