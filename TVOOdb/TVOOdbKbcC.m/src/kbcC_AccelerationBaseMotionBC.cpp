#include "kbcC_AccelerationBaseMotionBC.h"

cls_AttributeTable const& kbcC_AccelerationBaseMotionBCState::Attributes() {
  using S = kbcC_AccelerationBaseMotionBCState;
  static auto const table = cls_Describe<S, kbcC_BaseMotionBCState>("kbcC_AccelerationBaseMotionBCState", 203);
  return table;
}

cls_AttributeTable const& kbcC_AccelerationBaseMotionBC::Attributes() {
  using BC = kbcC_AccelerationBaseMotionBC;
  static auto const table = cls_Describe<BC, kbcC_BaseMotionBC>("kbcC_AccelerationBaseMotionBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_AccelerationBaseMotionBCState>();
  return table;
}
