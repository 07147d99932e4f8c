#include "kprC_ExplicitProcedure.h"

#include "kprC_incrementChecks.h"

void kprC_ExplicitProcedure::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  kprC_Assert(timePeriod > 0.0, 77);
  switch (timeIncrementationMethod) {
    case FIXED_USER_DEFINED_INC:
      kprC_Assert(kprC_IsGivenPositive(userDefinedInc), 6);
      break;
    case AUTOMATIC_GLOBAL:
    case AUTOMATIC_EBE:
      kprC_Assert(maxIncrement > 0.0, 76);
      break;
    case FIXED_EBE:
      break;
  }
  kprC_Assert(scaleFactor > 0.0, 12);
  kprC_Assert(linearBulkViscosity >= 0.0, 13);
  kprC_Assert(quadBulkViscosity >= 0.0, 14);
}
