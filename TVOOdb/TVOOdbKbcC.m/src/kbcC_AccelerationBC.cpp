#include "kbcC_AccelerationBC.h"

#include "kbcC_describeComponents.h"
#include "kbcC_perturbationSteps.h"

cls_AttributeTable const& kbcC_AccelerationBCState::Attributes() {
  static auto const table =
      kbcC_WithComponents(cls_Describe<kbcC_AccelerationBCState, kbcC_BCState>("kbcC_AccelerationBCState", 203));
  return table;
}

cls_AttributeTable const& kbcC_AccelerationBC::Attributes() {
  static auto const table = cls_Describe<kbcC_AccelerationBC, kbcC_BC>("kbcC_AccelerationBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_AccelerationBCState>();
  return table;
}

bool kbcC_AccelerationBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofAcceleration, procedure, flag);
}

void kbcC_AccelerationBC::AssertKind() const {
  kbcC_AssertNoDiscreteField(*this, "Discrete Fields are not supported as Acceleration BC distributions.");
}
