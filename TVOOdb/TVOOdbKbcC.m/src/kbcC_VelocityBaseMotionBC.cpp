#include "kbcC_VelocityBaseMotionBC.h"

cls_AttributeTable const& kbcC_VelocityBaseMotionBCState::Attributes() {
  static auto const table = cls_Describe<kbcC_VelocityBaseMotionBCState, kbcC_BaseMotionBCState>("kbcC_VelocityBaseMotionBCState", 203);
  return table;
}

cls_AttributeTable const& kbcC_VelocityBaseMotionBC::Attributes() {
  static auto const table = cls_Describe<kbcC_VelocityBaseMotionBC, kbcC_BaseMotionBC>("kbcC_VelocityBaseMotionBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_VelocityBaseMotionBCState>();
  return table;
}

kbcC_VelocityBaseMotionBCState const& kbcC_VelocityBaseMotionBC::ConstGetState(cow_String const& step) const {
  CheckStep(step);
  return kprC_CheckedCast<kbcC_VelocityBaseMotionBCState>(*StateIn(step), __FILE__, __LINE__);
}
