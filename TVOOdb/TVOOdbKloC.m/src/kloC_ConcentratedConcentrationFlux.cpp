#include "kloC_ConcentratedConcentrationFlux.h"

cls_AttributeTable const& kloC_ConcentratedConcentrationFluxState::Attributes() {
  using Describe = cls_Describe<kloC_ConcentratedConcentrationFluxState, kloC_ScalarState>;
  static auto const table = Describe("kloC_ConcentratedConcentrationFluxState", 203);
  return table;
}

cls_AttributeTable const& kloC_ConcentratedConcentrationFlux::Attributes() {
  static auto const table =
      cls_Describe<kloC_ConcentratedConcentrationFlux, kloC_Scalar>("kloC_ConcentratedConcentrationFlux", 203)
          .Constructor(constructorCmd())
          .VariesBy<kloC_ConcentratedConcentrationFluxState>();
  return table;
}
