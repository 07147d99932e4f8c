#include "kprC_RayleighDamping.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_RayleighDampingComponent::Attributes() {
  using Self = kprC_RayleighDampingComponent;
  static auto const table = cls_Describe<Self>("kprC_RayleighDampingComponent", 203)
                                .Attribute("start", &Self::start)
                                .Attribute("end", &Self::end)
                                .Attribute("alpha", &Self::alpha)
                                .Attribute("beta", &Self::beta);
  return table;
}

void kprC_RayleighDampingComponent::AssertValid() const {
  AssertModes();
  kprC_Assert(beta >= 0.0, 22);
}

cls_AttributeTable const& kprC_RayleighDamping::Attributes() {
  using Self = kprC_RayleighDamping;
  static auto const table = cls_Describe<Self>("kprC_RayleighDamping", 203).Attribute("components", &Self::components);
  return table;
}
