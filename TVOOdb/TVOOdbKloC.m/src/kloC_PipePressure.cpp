#include "kloC_PipePressure.h"

cls_AttributeTable const& kloC_PipePressureState::Attributes() {
  static auto const table = cls_Describe<kloC_PipePressureState, kloC_PressureState>("kloC_PipePressureState", 203);
  return table;
}

cls_AttributeTable const& kloC_PipePressure::Attributes() {
  static auto const table = cls_Describe<kloC_PipePressure, kloC_Pressure>("kloC_PipePressure", 1322)
                                .Attribute(0, "side", &kloC_PipePressure::side)
                                .Attribute(1, "diameter", &kloC_PipePressure::diameter)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_PipePressureState>();
  return table;
}

void kloC_PipePressure::AssertKind() const {
  kloC_Pressure::AssertKind();
  kloC_Assert(diameter > 0.0, 42);
}
