#include "kbcC_DistributedBC.h"

#include "kbcC_perturbationSteps.h"

cls_AttributeTable const& kbcC_DistributedBCState::Attributes() {
  static auto const table = cls_Describe<kbcC_DistributedBCState, kbcC_BCState>("kbcC_DistributedBCState", 203)
                                .Attribute(0, "magnitude", &kbcC_DistributedBCState::magnitude);
  return table;
}

cls_AttributeTable const& kbcC_DistributedBC::Attributes() {
  static auto const table = cls_Describe<kbcC_DistributedBC, kbcC_BC>("kbcC_DistributedBC", 203)
                                .Attribute(1, "fixed", &kbcC_DistributedBC::fixed);
  return table;
}

bool kbcC_DistributedBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofComponents, procedure, flag);
}

void kbcC_DistributedBC::AssertValid() const {
  if (suppressionState != RESUMED) {
    return;
  }
  kbcC_BC::AssertValid();
  if (fixed) {
    kbcC_AssertHeld<kbcC_DistributedBCState>(states);
    kbcC_Assert(states.First().state.IsNull(), 25);
  }
  kbcC_AssertZeroInitially<kbcC_DistributedBCState>(states);
}
