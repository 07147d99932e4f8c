#include "kbcC_ConcentrationBC.h"

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_ConcentrationBCState::Attributes() {
  using S = kbcC_ConcentrationBCState;
  static auto const table = cls_Describe<S, kbcC_DistributedBCState>("kbcC_ConcentrationBCState", 203);
  return table;
}

cls_AttributeTable const& kbcC_ConcentrationBC::Attributes() {
  using BC = kbcC_ConcentrationBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_ConcentrationBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ConcentrationBCState>();
  return table;
}
