#include "kloC_ConcentratedCurrent.h"

cls_AttributeTable const& kloC_ConcentratedCurrentState::Attributes() {
  static auto const table =
      cls_Describe<kloC_ConcentratedCurrentState, kloC_ScalarState>("kloC_ConcentratedCurrentState", 203);
  return table;
}

cls_AttributeTable const& kloC_ConcentratedCurrent::Attributes() {
  static auto const table = cls_Describe<kloC_ConcentratedCurrent, kloC_Scalar>("kloC_ConcentratedCurrent", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_ConcentratedCurrentState>();
  return table;
}
