#include "kprC_IncrementalStep.h"

#include "kprC_assert.h"

void kprC_IncrementalStep::AssertIncrements(kprC_IncrementRules const& rules) const {
  kprC_Assert(timePeriod > 0.0, 77);
  kprC_Assert(initialInc > 0.0, rules.noInitialInc);
  kprC_Assert(timePeriod >= initialInc, 78);
  kprC_Assert(maxNumInc > 0, 5);
  if (timeIncrementationMethod != AUTOMATIC) return;
  kprC_Assert(minInc > 0.0, 75);
  bool const maxIncCounts = !rules.maxIncOfSolver;
  if (maxIncCounts && !rules.minIncFirst) kprC_Assert(maxInc > 0.0, 76);
  if (maxIncCounts) kprC_Assert(maxInc >= minInc, 82);
  kprC_Assert(initialInc >= minInc, 83);
  if (!maxIncCounts) return;
  kprC_Assert(maxInc >= initialInc, 81);
  if (rules.minIncFirst) kprC_Assert(maxInc > 0.0, 76);
  kprC_Assert(!rules.maxIncWithinPeriod || timePeriod >= maxInc, 80);
}
