#include "kloC_InwardVolAccel.h"

cls_AttributeTable const& kloC_InwardVolAccelState::Attributes() {
  static auto const table = cls_Describe<kloC_InwardVolAccelState, kloC_ScalarState>("kloC_InwardVolAccelState", 203);
  return table;
}

cls_AttributeTable const& kloC_InwardVolAccel::Attributes() {
  static auto const table = cls_Describe<kloC_InwardVolAccel, kloC_Scalar>("kloC_InwardVolAccel", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_InwardVolAccelState>();
  return table;
}
