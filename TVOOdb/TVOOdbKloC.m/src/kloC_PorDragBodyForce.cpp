#include "kloC_PorDragBodyForce.h"

cls_AttributeTable const& kloC_PorDragBodyForceState::Attributes() {
  static auto const table =
      cls_Describe<kloC_PorDragBodyForceState, kloC_ScalarState>("kloC_PorDragBodyForceState", 1632);
  return table;
}

cls_AttributeTable const& kloC_PorDragBodyForce::Attributes() {
  static auto const table = cls_Describe<kloC_PorDragBodyForce, kloC_Scalar>("kloC_PorDragBodyForce", 1632)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_PorDragBodyForceState>();
  return table;
}
