#include "kbcC_DistributedBC.h"

#include "kbcC_BCTypes.h"
#include "kbcC_perturbationSteps.h"
#include "kprC_StepList.h"

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
  // What a step takes that works on the modes of a structure is what the extraction of these modes took.
  auto const frequency = static_cast<int>(kprC_Procedure::Frequency);
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofComponents, procedure, flag) &&
         kbcC_isOfferedBCTypeforStep(static_cast<int>(DynTypeId()), frequency, STANDARD_ANALYSIS);
}

void kbcC_DistributedBC::AssertKind() const {
  if (fixed) {
    kbcC_AssertHeld<kbcC_DistributedBCState>(states);
    kbcC_Assert(states.First().state.IsNull(), 25);
  }
  kbcC_AssertZeroInitially<kbcC_DistributedBCState>(states);
}
