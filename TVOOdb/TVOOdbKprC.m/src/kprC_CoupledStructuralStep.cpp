#include "kprC_CoupledStructuralStep.h"

#include "kprC_incrementChecks.h"

void kprC_CoupledStructuralStep::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  AssertIncrements();
  if (response == TRANSIENT && timeIncrementationMethod == AUTOMATIC) {
    kprC_Assert(kprC_IsGivenPositive(cetol) || kprC_IsGivenPositive(deltmx), 10);
  }
  kprC_Assert(stabilizationMagnitude == cls_NotGiven<double> || stabilizationMethod != NONE, 90);
  kprC_AssertDamping(*this);
}
