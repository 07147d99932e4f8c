#include "kbcC_MassFlowBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_MassFlowBCState::Attributes() {
  using S = kbcC_MassFlowBCState;
  static auto const table =
      kbcC_WithComplexMagnitude(cls_Describe<S, kbcC_DistributedBCState>("kbcC_MassFlowBCState", 1008));
  return table;
}

cls_AttributeTable const& kbcC_MassFlowBC::Attributes() {
  using BC = kbcC_MassFlowBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_MassFlowBC", 1008)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_MassFlowBCState>();
  return table;
}
