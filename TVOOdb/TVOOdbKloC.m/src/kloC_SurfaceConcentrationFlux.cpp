#include "kloC_SurfaceConcentrationFlux.h"

cls_AttributeTable const& kloC_SurfaceConcentrationFluxState::Attributes() {
  using Describe = cls_Describe<kloC_SurfaceConcentrationFluxState, kloC_DistributedState>;
  static auto const table = Describe("kloC_SurfaceConcentrationFluxState", 203);
  return table;
}

cls_AttributeTable const& kloC_SurfaceConcentrationFlux::Attributes() {
  static auto const table =
      cls_Describe<kloC_SurfaceConcentrationFlux, kloC_Distributed>("kloC_SurfaceConcentrationFlux", 203)
          .Constructor(constructorCmd())
          .VariesBy<kloC_SurfaceConcentrationFluxState>();
  return table;
}
