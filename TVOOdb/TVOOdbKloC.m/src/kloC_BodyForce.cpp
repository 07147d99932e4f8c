#include "kloC_BodyForce.h"

cls_AttributeTable const& kloC_BodyForceState::Attributes() {
  static auto const table = cls_Describe<kloC_BodyForceState, kloC_VectorState>("kloC_BodyForceState", 203);
  return table;
}

cls_AttributeTable const& kloC_BodyForce::Attributes() {
  static auto const table = cls_Describe<kloC_BodyForce, kloC_Vector>("kloC_BodyForce", 203)
                                .Attribute(0, "distType", &kloC_BodyForce::distType)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_BodyForceState>();
  return table;
}
