#include "kprC_RayleighDampingByFrequency.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_RayleighDampingByFrequencyComponent::Attributes() {
  using Self = kprC_RayleighDampingByFrequencyComponent;
  static auto const table = cls_Describe<Self>("kprC_RayleighDampingByFrequencyComponent", 445)
                                .Attribute("frequency", &Self::frequency)
                                .Attribute("alpha", &Self::alpha)
                                .Attribute("beta", &Self::beta);
  return table;
}

void kprC_RayleighDampingByFrequencyComponent::AssertValid() const {
  AssertFrequency();
  kprC_Assert(beta >= 0.0, 22);
}

cls_AttributeTable const& kprC_RayleighDampingByFrequency::Attributes() {
  using Self = kprC_RayleighDampingByFrequency;
  static auto const table =
      cls_Describe<Self>("kprC_RayleighDampingByFrequency", 445).Attribute("components", &Self::components);
  return table;
}
