#include "kprC_ExplicitContactControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_ExplicitContactControls::Attributes() {
  using Self = kprC_ExplicitContactControls;
  static auto const table = cls_Describe<Self, kprC_ContactControls>("kprC_ExplicitContactControls", 302)
                                .Attribute("cpset", &Self::cpset)
                                .Attribute("fastLocalTracking", &Self::fastLocalTracking)
                                .Attribute("inc", &Self::inc)
                                .Attribute("warpCheckPeriod", &Self::warpCheckPeriod)
                                .Attribute("warpCutOff", &Self::warpCutOff)
                                .Attribute("penalty", &Self::penalty);
  return table;
}

void kprC_ExplicitContactControls::AssertValid() const {
  kprC_Assert(inc > 0, 124);
  kprC_Assert(warpCheckPeriod > 0, 125);
  kprC_Assert(warpCutOff > 0.0, 126);
  kprC_Assert(penalty >= 0.0, 127);
}
