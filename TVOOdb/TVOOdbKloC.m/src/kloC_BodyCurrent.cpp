#include "kloC_BodyCurrent.h"

cls_AttributeTable const& kloC_BodyCurrentState::Attributes() {
  static auto const table = cls_Describe<kloC_BodyCurrentState, kloC_ScalarState>("kloC_BodyCurrentState", 203);
  return table;
}

cls_AttributeTable const& kloC_BodyCurrent::Attributes() {
  static auto const table = cls_Describe<kloC_BodyCurrent, kloC_Scalar>("kloC_BodyCurrent", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_BodyCurrentState>();
  return table;
}
