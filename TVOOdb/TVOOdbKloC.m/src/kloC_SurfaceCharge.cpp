#include "kloC_SurfaceCharge.h"

cls_AttributeTable const& kloC_SurfaceChargeState::Attributes() {
  static auto const table = cls_Describe<kloC_SurfaceChargeState, kloC_ScalarState>("kloC_SurfaceChargeState", 203);
  return table;
}

cls_AttributeTable const& kloC_SurfaceCharge::Attributes() {
  static auto const table = cls_Describe<kloC_SurfaceCharge, kloC_Scalar>("kloC_SurfaceCharge", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_SurfaceChargeState>();
  return table;
}
