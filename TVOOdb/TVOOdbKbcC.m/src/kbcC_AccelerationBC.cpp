#include "kbcC_AccelerationBC.h"

#include "kbcC_perturbationSteps.h"

cls_AttributeTable const& kbcC_AccelerationBCState::Attributes() {
  using S = kbcC_AccelerationBCState;
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_AccelerationBCState", 203)
                                .Attribute(0, "a1", &S::a1)
                                .Attribute(1, "a2", &S::a2)
                                .Attribute(2, "a3", &S::a3)
                                .Attribute(3, "ar1", &S::ar1)
                                .Attribute(4, "ar2", &S::ar2)
                                .Attribute(5, "ar3", &S::ar3);
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

void kbcC_AccelerationBC::AssertValid() const {
  if (suppressionState != RESUMED) {
    return;
  }
  kbcC_BC::AssertValid();
  kbcC_AssertNoDiscreteField(*this, "Discrete Fields are not supported as Acceleration BC distributions.");
}
