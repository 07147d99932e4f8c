#include "kbcC_VelocityBaseMotionBC.h"

cls_AttributeTable const& kbcC_VelocityBaseMotionBCState::Attributes() {
  using S = kbcC_VelocityBaseMotionBCState;
  static auto const table = cls_Describe<S, kbcC_BaseMotionBCState>("kbcC_VelocityBaseMotionBCState", 203);
  return table;
}

cls_AttributeTable const& kbcC_VelocityBaseMotionBC::Attributes() {
  using BC = kbcC_VelocityBaseMotionBC;
  static auto const table = cls_Describe<BC, kbcC_BaseMotionBC>("kbcC_VelocityBaseMotionBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_VelocityBaseMotionBCState>();
  return table;
}
