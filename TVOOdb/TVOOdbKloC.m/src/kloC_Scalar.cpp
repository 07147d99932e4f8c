#include "kloC_Scalar.h"

#include "kloC_describeValues.h"

cls_AttributeTable const& kloC_ScalarState::Attributes() {
  static auto const table = cls_Describe<kloC_ScalarState, kloC_LoadState>("kloC_ScalarState", 203)
                                .Attribute(0, "magnitude", &kloC_ScalarState::magnitude);
  return table;
}

cls_AttributeTable const& kloC_Scalar::Attributes() {
  static auto const table = kloC_WithComplexMagnitude(cls_Describe<kloC_Scalar, kloC_Load>("kloC_Scalar", 1646), 1)
                                .Attribute(4, "distType", &kloC_Scalar::distType);
  return table;
}
