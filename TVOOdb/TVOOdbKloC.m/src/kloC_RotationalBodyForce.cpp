#include "kloC_RotationalBodyForce.h"

#include "kloC_describeValues.h"

cls_AttributeTable const& kloC_RotationalBodyForceState::Attributes() {
  static auto const table =
      cls_Describe<kloC_RotationalBodyForceState, kloC_ScalarState>("kloC_RotationalBodyForceState", 203);
  return table;
}

cls_AttributeTable const& kloC_RotationalBodyForce::Attributes() {
  static auto const table =
      kloC_WithAxis(cls_Describe<kloC_RotationalBodyForce, kloC_Scalar>("kloC_RotationalBodyForce", 2500))
          .Attribute(6, "centrifugal", &kloC_RotationalBodyForce::centrifugal)
          .Attribute(7, "rotaryAcceleration", &kloC_RotationalBodyForce::rotaryAcceleration)
          .Constructor(constructorCmd())
          .VariesBy<kloC_RotationalBodyForceState>();
  return table;
}

void kloC_RotationalBodyForce::AssertKind() const {
  kloC_Assert(centrifugal != rotaryAcceleration, 43);
  AssertAxis();
}

void kloC_RotationalBodyForce::AssertInSpace(kloC_SpaceEnm space) const {
  if (space == kloC_SpaceEnm::AXISYMMETRIC) {
    kloC_Assert(IsAxisOfSymmetry(), 44);
    kloC_Assert(centrifugal, 45);
  }
}
