#include "kloC_ConcentratedCharge.h"

cls_AttributeTable const& kloC_ConcentratedChargeState::Attributes() {
  static auto const table =
      cls_Describe<kloC_ConcentratedChargeState, kloC_ScalarState>("kloC_ConcentratedChargeState", 203);
  return table;
}

cls_AttributeTable const& kloC_ConcentratedCharge::Attributes() {
  static auto const table = cls_Describe<kloC_ConcentratedCharge, kloC_Scalar>("kloC_ConcentratedCharge", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_ConcentratedChargeState>();
  return table;
}
