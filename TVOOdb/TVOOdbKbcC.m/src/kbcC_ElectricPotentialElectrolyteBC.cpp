#include "kbcC_ElectricPotentialElectrolyteBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_ElectricPotentialElectrolyteBCState::Attributes() {
  using S = kbcC_ElectricPotentialElectrolyteBCState;
  static auto const table = kbcC_WithComplexMagnitude(
      cls_Describe<S, kbcC_DistributedBCState>("kbcC_ElectricPotentialElectrolyteBCState", 2506));
  return table;
}

cls_AttributeTable const& kbcC_ElectricPotentialElectrolyteBC::Attributes() {
  using BC = kbcC_ElectricPotentialElectrolyteBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_ElectricPotentialElectrolyteBC", 2506)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ElectricPotentialElectrolyteBCState>();
  return table;
}
