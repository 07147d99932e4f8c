#include "kloC_ConcentratedHeatFlux.h"

cls_AttributeTable const& kloC_ConcentratedHeatFluxState::Attributes() {
  static auto const table =
      cls_Describe<kloC_ConcentratedHeatFluxState, kloC_ScalarState>("kloC_ConcentratedHeatFluxState", 203);
  return table;
}

cls_AttributeTable const& kloC_ConcentratedHeatFlux::Attributes() {
  static auto const table = cls_Describe<kloC_ConcentratedHeatFlux, kloC_Scalar>("kloC_ConcentratedHeatFlux", 203)
                                .Attribute(0, "dof", &kloC_ConcentratedHeatFlux::dof)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_ConcentratedHeatFluxState>();
  return table;
}

void kloC_ConcentratedHeatFlux::AssertKind() const { kloC_Assert(dof >= 11 && dof <= 31, 40); }
