#include "kbcC_VelocityBC.h"

#include "kbcC_perturbationSteps.h"

cls_AttributeTable const& kbcC_VelocityBCState::Attributes() {
  using S = kbcC_VelocityBCState;
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_VelocityBCState", 203)
                                .Attribute(0, "v1", &S::v1)
                                .Attribute(1, "v2", &S::v2)
                                .Attribute(2, "v3", &S::v3)
                                .Attribute(3, "vr1", &S::vr1)
                                .Attribute(4, "vr2", &S::vr2)
                                .Attribute(5, "vr3", &S::vr3);
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

void kbcC_VelocityBC::AssertValid() const {
  if (suppressionState != RESUMED) {
    return;
  }
  kbcC_AssertNoDiscreteField(*this, "Discrete Fields are not supported as Velocity BC distributions.");
  kbcC_BC::AssertValid();
}
