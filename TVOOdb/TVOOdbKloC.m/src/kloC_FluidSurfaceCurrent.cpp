#include "kloC_FluidSurfaceCurrent.h"

cls_AttributeTable const& kloC_FluidSurfaceCurrentState::Attributes() {
  static auto const table =
      cls_Describe<kloC_FluidSurfaceCurrentState, kloC_ScalarState>("kloC_FluidSurfaceCurrentState", 2510);
  return table;
}

cls_AttributeTable const& kloC_FluidSurfaceCurrent::Attributes() {
  static auto const table = cls_Describe<kloC_FluidSurfaceCurrent, kloC_Scalar>("kloC_FluidSurfaceCurrent", 2510)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_FluidSurfaceCurrentState>();
  return table;
}
