#include "kloC_ReferencePressure.h"

cls_AttributeTable const& kloC_ReferencePressureState::Attributes() {
  static auto const table =
      cls_Describe<kloC_ReferencePressureState, kloC_ScalarState>("kloC_ReferencePressureState", 1409);
  return table;
}

cls_AttributeTable const& kloC_ReferencePressure::Attributes() {
  static auto const table = cls_Describe<kloC_ReferencePressure, kloC_Scalar>("kloC_ReferencePressure", 1409)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_ReferencePressureState>();
  return table;
}

void kloC_ReferencePressureState::AssertValid() const { kloC_Assert(magnitude.ConstGet() >= 0.0, 77); }
