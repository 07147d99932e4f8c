#include "kbcC_DisplacementBaseMotionBC.h"

cls_AttributeTable const& kbcC_DisplacementBaseMotionBCState::Attributes() {
  using S = kbcC_DisplacementBaseMotionBCState;
  static auto const table = cls_Describe<S, kbcC_BaseMotionBCState>("kbcC_DisplacementBaseMotionBCState", 203);
  return table;
}

cls_AttributeTable const& kbcC_DisplacementBaseMotionBC::Attributes() {
  using BC = kbcC_DisplacementBaseMotionBC;
  static auto const table = cls_Describe<BC, kbcC_BaseMotionBC>("kbcC_DisplacementBaseMotionBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_DisplacementBaseMotionBCState>();
  return table;
}
