#include "kloC_ConcentratedPoreFluid.h"

cls_AttributeTable const& kloC_ConcentratedPoreFluidState::Attributes() {
  static auto const table =
      cls_Describe<kloC_ConcentratedPoreFluidState, kloC_ScalarState>("kloC_ConcentratedPoreFluidState", 203);
  return table;
}

cls_AttributeTable const& kloC_ConcentratedPoreFluid::Attributes() {
  static auto const table = cls_Describe<kloC_ConcentratedPoreFluid, kloC_Scalar>("kloC_ConcentratedPoreFluid", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_ConcentratedPoreFluidState>();
  return table;
}
