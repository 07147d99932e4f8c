#include "kprC_DirectDamping.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_DirectDampingComponent::Attributes() {
  using Self = kprC_DirectDampingComponent;
  static auto const table = cls_Describe<Self>("kprC_DirectDampingComponent", 203)
                                .Attribute("start", &Self::start)
                                .Attribute("end", &Self::end)
                                .Attribute("fraction", &Self::fraction);
  return table;
}

void kprC_DirectDampingComponent::AssertValid() const {
  AssertModes();
  kprC_Assert(fraction >= 0.0, 21);
}

cls_AttributeTable const& kprC_DirectDamping::Attributes() {
  using Self = kprC_DirectDamping;
  static auto const table = cls_Describe<Self>("kprC_DirectDamping", 203).Attribute("components", &Self::components);
  return table;
}
