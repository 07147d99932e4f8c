#include "kloC_ConcentratedForce.h"

cls_AttributeTable const& kloC_ConcentratedForceState::Attributes() {
  static auto const table =
      cls_Describe<kloC_ConcentratedForceState, kloC_VectorState>("kloC_ConcentratedForceState", 203);
  return table;
}

cls_AttributeTable const& kloC_ConcentratedForce::Attributes() {
  static auto const table = cls_Describe<kloC_ConcentratedForce, kloC_Vector>("kloC_ConcentratedForce", 203)
                                .Attribute(0, "follower", &kloC_ConcentratedForce::follower)
                                .Attribute(1, "csys", &kloC_ConcentratedForce::csys)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_ConcentratedForceState>();
  return table;
}
