#include "kprC_LinearCtrl.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_LinearCtrl::Attributes() {
  using Self = kprC_LinearCtrl;
  static auto const table = cls_Describe<Self>("kprC_LinearCtrl", 1576)
                                .Attribute("allowPropagation", &Self::allowPropagation)
                                .Attribute("resetDefaultValues", &Self::resetDefaultValues)
                                .Attribute("relativeTolerance", &Self::relativeTolerance)
                                .Attribute("maxIterations", &Self::maxIterations)
                                .Attribute("fillInLevel", &Self::fillInLevel);
  return table;
}

void kprC_LinearCtrl::AssertValid() const {
  // Zero passes the first two, although their texts ask for more.
  kprC_Assert(relativeTolerance >= 0.0, 150);
  kprC_Assert(maxIterations >= 0, 151);
  kprC_Assert(fillInLevel >= 0 && fillInLevel <= 3, 313);
}
