#include "kloC_Pressure.h"

#include "kloC_describeValues.h"
#include "kprC_typeUtils.h"

cls_AttributeTable const& kloC_PressureState::Attributes() {
  static auto const table = cls_Describe<kloC_PressureState, kloC_LoadState>("kloC_PressureState", 203)
                                .Attribute(0, "magnitude", &kloC_PressureState::magnitude)
                                .Attribute(1, "hZero", &kloC_PressureState::hZero)
                                .Attribute(2, "hReference", &kloC_PressureState::hReference)
                                .Attribute(3, "useHydrostatic", &kloC_PressureState::useHydrostatic);
  return table;
}

cls_AttributeTable const& kloC_Pressure::Attributes() {
  using Describe = cls_Describe<kloC_Pressure, kloC_Load>;
  static auto const table = kloC_WithComplexMagnitude(
                                Describe("kloC_Pressure", 1646).Attribute(4, "distType", &kloC_Pressure::distType), 5)
                                .Attribute(8, "referencePoint", &kloC_Pressure::referencePoint)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_PressureState>();
  return table;
}

std::optional<kloC_DistributionEnm> kloC_Pressure::Distribution() const {
  return distType < kloC_PressureDistributionEnm::HYDROSTATIC ? static_cast<kloC_DistributionEnm>(distType)
                                                              : kloC_DistributionEnm::UNIFORM;
}

void kloC_Pressure::AssertKind() const {
  for (Quad const& quad : states) {
    if (quad.state.HasValue() && !quad.IsStepSuppressed()) {
      auto const& state = kprC_CheckedCast<kloC_PressureState>(quad.state.ConstGet(), __FILE__, __LINE__);
      if (state.useHydrostatic || distType == kloC_PressureDistributionEnm::HYDROSTATIC) {
        kloC_Assert(!kprC_IsExplicit(static_cast<unsigned int>(quad.Procedure())), 19);
        kloC_Assert(state.hZero.ConstGet() != state.hReference.ConstGet(), 20);
      }
    }
  }
}
