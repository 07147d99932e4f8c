#include "kloC_Traction.h"

#include "kloC_describeValues.h"

cls_AttributeTable const& kloC_TractionState::Attributes() {
  static auto const table = cls_Describe<kloC_TractionState, kloC_LoadState>("kloC_TractionState", 409)
                                .Attribute(0, "magnitude", &kloC_TractionState::magnitude);
  return table;
}

cls_AttributeTable const& kloC_Traction::Attributes() {
  static auto const table = kloC_WithComplexMagnitude(cls_Describe<kloC_Traction, kloC_Load>("kloC_Traction", 891), 1)
                                .Attribute(4, "csys", &kloC_Traction::csys)
                                .Attribute(5, "userCsys", &kloC_Traction::userCsys)
                                .Attribute(6, "angle", &kloC_Traction::angle)
                                .Attribute(7, "axis", &kloC_Traction::axis)
                                .Attribute(8, "directionVector", &kloC_Traction::directionVector)
                                .Attribute(9, "follower", &kloC_Traction::follower)
                                .Attribute(10, "resultant", &kloC_Traction::resultant);
  return table;
}

void kloC_Traction::AssertKind() const {
  bool hasLength = false;
  for (double const component : directionVector) {
    hasLength = hasLength || component != 0.0;
  }
  kloC_Assert((hasLength && directionVector.Length() == 3) || (directionVector.IsEmpty() && !NeedsDirection()), 64);
  kloC_Assert(csys.IsNullRef() || userCsys.IsEmpty(), 65);
  kloC_Assert(follower || IsGeneral(), 66);
}
