#include "kloC_SurfaceHeatFlux.h"

cls_AttributeTable const& kloC_SurfaceHeatFluxState::Attributes() {
  static auto const table =
      cls_Describe<kloC_SurfaceHeatFluxState, kloC_DistributedState>("kloC_SurfaceHeatFluxState", 203);
  return table;
}

cls_AttributeTable const& kloC_SurfaceHeatFlux::Attributes() {
  static auto const table = cls_Describe<kloC_SurfaceHeatFlux, kloC_Distributed>("kloC_SurfaceHeatFlux", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_SurfaceHeatFluxState>();
  return table;
}
