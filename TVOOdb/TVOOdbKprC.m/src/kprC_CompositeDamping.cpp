#include "kprC_CompositeDamping.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_CompositeDampingComponent::Attributes() {
  using Self = kprC_CompositeDampingComponent;
  static auto const table = cls_Describe<Self>("kprC_CompositeDampingComponent", 445)
                                .Attribute("start", &Self::start)
                                .Attribute("end", &Self::end);
  return table;
}

void kprC_CompositeDampingComponent::AssertValid() const { AssertModes(); }

cls_AttributeTable const& kprC_CompositeDamping::Attributes() {
  using Self = kprC_CompositeDamping;
  static auto const table = cls_Describe<Self>("kprC_CompositeDamping", 445).Attribute("components", &Self::components);
  return table;
}
