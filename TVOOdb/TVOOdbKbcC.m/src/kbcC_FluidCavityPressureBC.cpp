#include "kbcC_FluidCavityPressureBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_FluidCavityPressureBCState::Attributes() {
  using S = kbcC_FluidCavityPressureBCState;
  static auto const table =
      kbcC_WithComplexMagnitude(cls_Describe<S, kbcC_DistributedBCState>("kbcC_FluidCavityPressureBCState", 1605), 1);
  return table;
}

cls_AttributeTable const& kbcC_FluidCavityPressureBC::Attributes() {
  using BC = kbcC_FluidCavityPressureBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_FluidCavityPressureBC", 1604)
                                .Attribute(0, "fluidCavity", &BC::fluidCavity)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_FluidCavityPressureBCState>();
  return table;
}
