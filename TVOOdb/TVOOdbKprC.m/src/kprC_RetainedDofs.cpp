#include "kprC_RetainedDofs.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_RetainedDofs::Attributes() {
  using Self = kprC_RetainedDofs;
  static auto const table = cls_Describe<Self>("kprC_RetainedDofs", 403)
                                .Attribute("region", &Self::region)
                                .Attribute("dofs", &Self::dofs)
                                .Constructor("RetainedDofs");
  return table;
}

void kprC_RetainedDofs::AssertValid() const {
  for (int const dof : dofs) kprC_Assert(dof > 0, 248);
}
