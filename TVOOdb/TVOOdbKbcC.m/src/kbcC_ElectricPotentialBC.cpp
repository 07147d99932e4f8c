#include "kbcC_ElectricPotentialBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_ElectricPotentialBCState::Attributes() {
  using S = kbcC_ElectricPotentialBCState;
  static auto const table =
      kbcC_WithComplexMagnitude(cls_Describe<S, kbcC_DistributedBCState>("kbcC_ElectricPotentialBCState", 203));
  return table;
}

cls_AttributeTable const& kbcC_ElectricPotentialBC::Attributes() {
  using BC = kbcC_ElectricPotentialBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_ElectricPotentialBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ElectricPotentialBCState>();
  return table;
}
