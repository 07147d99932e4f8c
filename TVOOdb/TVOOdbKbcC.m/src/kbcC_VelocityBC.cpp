#include "kbcC_VelocityBC.h"

#include "kbcC_describeComponents.h"
#include "kbcC_perturbationSteps.h"

cls_AttributeTable const& kbcC_VelocityBCState::Attributes() {
  static auto const table =
      kbcC_WithComponents(cls_Describe<kbcC_VelocityBCState, kbcC_BCState>("kbcC_VelocityBCState", 203));
  return table;
}

cls_AttributeTable const& kbcC_VelocityBC::Attributes() {
  static auto const table = cls_Describe<kbcC_VelocityBC, kbcC_BC>("kbcC_VelocityBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_VelocityBCState>();
  return table;
}

bool kbcC_VelocityBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofComponents, procedure, flag);
}

void kbcC_VelocityBC::AssertDefinition() const {
  kbcC_AssertNoDiscreteField(*this, "Discrete Fields are not supported as Velocity BC distributions.");
  kbcC_BC::AssertDefinition();
}
