#include "kloC_Gravity.h"

cls_AttributeTable const& kloC_GravityState::Attributes() {
  static auto const table = cls_Describe<kloC_GravityState, kloC_VectorState>("kloC_GravityState", 203);
  return table;
}

cls_AttributeTable const& kloC_Gravity::Attributes() {
  static auto const table = cls_Describe<kloC_Gravity, kloC_Vector>("kloC_Gravity", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_GravityState>();
  return table;
}

void kloC_Gravity::AssertInSpace(kloC_SpaceEnm space) const {
  if (space != kloC_SpaceEnm::AXISYMMETRIC) {
    return;
  }
  for (Quad const& quad : states) {
    if (quad.state.HasValue() && !quad.IsStepSuppressed()) {
      auto const& state = kprC_CheckedCast<kloC_GravityState>(quad.state.ConstGet(), __FILE__, __LINE__);
      kloC_Assert(IsZero(state, 0, quad.Procedure()) && IsZero(state, 2, quad.Procedure()), 46);
    }
  }
}
