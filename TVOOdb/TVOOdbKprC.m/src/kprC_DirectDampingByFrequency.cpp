#include "kprC_DirectDampingByFrequency.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_DirectDampingByFrequencyComponent::Attributes() {
  using Self = kprC_DirectDampingByFrequencyComponent;
  static auto const table = cls_Describe<Self>("kprC_DirectDampingByFrequencyComponent", 445)
                                .Attribute("frequency", &Self::frequency)
                                .Attribute("fraction", &Self::fraction);
  return table;
}

void kprC_DirectDampingByFrequencyComponent::AssertValid() const {
  AssertFrequency();
  kprC_Assert(fraction >= 0.0, 21);
}

cls_AttributeTable const& kprC_DirectDampingByFrequency::Attributes() {
  using Self = kprC_DirectDampingByFrequency;
  static auto const table =
      cls_Describe<Self>("kprC_DirectDampingByFrequency", 445).Attribute("components", &Self::components);
  return table;
}
