#include "kloC_PressurePenetration.h"

cls_AttributeTable const& kloC_PressurePenetrationState::Attributes() {
  static auto const table =
      cls_Describe<kloC_PressurePenetrationState, kloC_LoadState>("kloC_PressurePenetrationState", 203)
          .Attribute(0, "p1", &kloC_PressurePenetrationState::p1)
          .Attribute(1, "p2", &kloC_PressurePenetrationState::p2);
  return table;
}

cls_AttributeTable const& kloC_PressurePenetration::Attributes() {
  static auto const table = cls_Describe<kloC_PressurePenetration, kloC_Load>("kloC_PressurePenetration", 203)
                                .Attribute(2, "interaction", &kloC_PressurePenetration::interaction)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_PressurePenetrationState>();
  return table;
}
