#include "kbcC_AcousticPressureBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_AcousticPressureBCState::Attributes() {
  using S = kbcC_AcousticPressureBCState;
  static auto const table =
      kbcC_WithComplexMagnitude(cls_Describe<S, kbcC_DistributedBCState>("kbcC_AcousticPressureBCState", 203));
  return table;
}

cls_AttributeTable const& kbcC_AcousticPressureBC::Attributes() {
  using BC = kbcC_AcousticPressureBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_AcousticPressureBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_AcousticPressureBCState>();
  return table;
}
