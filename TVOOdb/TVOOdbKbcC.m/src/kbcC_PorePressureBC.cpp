#include "kbcC_PorePressureBC.h"

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_PorePressureBCState::Attributes() {
  using S = kbcC_PorePressureBCState;
  static auto const table = cls_Describe<S, kbcC_DistributedBCState>("kbcC_PorePressureBCState", 203);
  return table;
}

cls_AttributeTable const& kbcC_PorePressureBC::Attributes() {
  using BC = kbcC_PorePressureBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_PorePressureBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_PorePressureBCState>();
  return table;
}
