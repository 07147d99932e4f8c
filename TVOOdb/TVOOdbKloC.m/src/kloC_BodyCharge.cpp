#include "kloC_BodyCharge.h"

cls_AttributeTable const& kloC_BodyChargeState::Attributes() {
  static auto const table = cls_Describe<kloC_BodyChargeState, kloC_ScalarState>("kloC_BodyChargeState", 203);
  return table;
}

cls_AttributeTable const& kloC_BodyCharge::Attributes() {
  static auto const table = cls_Describe<kloC_BodyCharge, kloC_Scalar>("kloC_BodyCharge", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_BodyChargeState>();
  return table;
}
