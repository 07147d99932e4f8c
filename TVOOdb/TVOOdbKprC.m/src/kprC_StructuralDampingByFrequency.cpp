#include "kprC_StructuralDampingByFrequency.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_StructuralDampingByFrequencyComponent::Attributes() {
  using Self = kprC_StructuralDampingByFrequencyComponent;
  static auto const table = cls_Describe<Self>("kprC_StructuralDampingByFrequencyComponent", 445)
                                .Attribute("frequency", &Self::frequency)
                                .Attribute("factor", &Self::factor);
  return table;
}

void kprC_StructuralDampingByFrequencyComponent::AssertValid() const {
  AssertFrequency();
  kprC_Assert(factor >= 0.0, 24);
}

cls_AttributeTable const& kprC_StructuralDampingByFrequency::Attributes() {
  using Self = kprC_StructuralDampingByFrequency;
  static auto const table =
      cls_Describe<Self>("kprC_StructuralDampingByFrequency", 445).Attribute("components", &Self::components);
  return table;
}
