#include "kloC_SurfacePoreFluid.h"

cls_AttributeTable const& kloC_SurfacePoreFluidState::Attributes() {
  static auto const table =
      cls_Describe<kloC_SurfacePoreFluidState, kloC_DistributedState>("kloC_SurfacePoreFluidState", 203);
  return table;
}

cls_AttributeTable const& kloC_SurfacePoreFluid::Attributes() {
  static auto const table = cls_Describe<kloC_SurfacePoreFluid, kloC_Distributed>("kloC_SurfacePoreFluid", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_SurfacePoreFluidState>();
  return table;
}
