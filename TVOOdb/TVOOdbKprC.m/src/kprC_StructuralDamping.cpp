#include "kprC_StructuralDamping.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_StructuralDampingComponent::Attributes() {
  using Self = kprC_StructuralDampingComponent;
  static auto const table = cls_Describe<Self>("kprC_StructuralDampingComponent", 203)
                                .Attribute("start", &Self::start)
                                .Attribute("end", &Self::end)
                                .Attribute("factor", &Self::factor);
  return table;
}

void kprC_StructuralDampingComponent::AssertValid() const {
  AssertModes();
  kprC_Assert(factor >= 0.0, 24);
}

cls_AttributeTable const& kprC_StructuralDamping::Attributes() {
  using Self = kprC_StructuralDamping;
  static auto const table =
      cls_Describe<Self>("kprC_StructuralDamping", 203).Attribute("components", &Self::components);
  return table;
}
