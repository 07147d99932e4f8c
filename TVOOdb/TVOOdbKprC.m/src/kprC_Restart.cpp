#include "kprC_Restart.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"
#include "kprC_stepUtils.h"

cls_AttributeTable const& kprC_Restart::Attributes() {
  static auto const table =
      cls_Describe<kprC_Restart>("kprC_Restart", 302).Attribute("overlay", &kprC_Restart::overlay);
  return table;
}

void kprC_Restart::AssertAllowedIn(kprC_Step const& step) const {
  kprC_Assert(step.DynTypeId() != kprC_InitialStep::TypeId(), 158);
  kprC_Assert(!overlay || !kprC_IsFrequencyBuckle(step.DynTypeId()), 174);
  kprC_Assert(!TimeMarks() || kprC_TimeMarksIsAllowed(step, true), 175);
  kprC_Assert(NumberIntervals() == 0 || kprC_NumberIntervalIsAllowed(step), 176);
}
