#include "kloC_CoriolisForce.h"

#include "kloC_describeValues.h"

cls_AttributeTable const& kloC_CoriolisForceState::Attributes() {
  static auto const table = cls_Describe<kloC_CoriolisForceState, kloC_ScalarState>("kloC_CoriolisForceState", 824);
  return table;
}

cls_AttributeTable const& kloC_CoriolisForce::Attributes() {
  static auto const table = kloC_WithAxis(cls_Describe<kloC_CoriolisForce, kloC_Scalar>("kloC_CoriolisForce", 1003))
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_CoriolisForceState>();
  return table;
}
