#include "kloC_SurfaceCurrentDensity.h"

cls_AttributeTable const& kloC_SurfaceCurrentDensityState::Attributes() {
  static auto const table =
      cls_Describe<kloC_SurfaceCurrentDensityState, kloC_VectorState>("kloC_SurfaceCurrentDensityState", 1626);
  return table;
}

cls_AttributeTable const& kloC_SurfaceCurrentDensity::Attributes() {
  static auto const table = cls_Describe<kloC_SurfaceCurrentDensity, kloC_Vector>("kloC_SurfaceCurrentDensity", 1626)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_SurfaceCurrentDensityState>();
  return table;
}
