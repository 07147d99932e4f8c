#include "kloC_SurfaceCurrent.h"

cls_AttributeTable const& kloC_SurfaceCurrentState::Attributes() {
  static auto const table = cls_Describe<kloC_SurfaceCurrentState, kloC_ScalarState>("kloC_SurfaceCurrentState", 203);
  return table;
}

cls_AttributeTable const& kloC_SurfaceCurrent::Attributes() {
  static auto const table = cls_Describe<kloC_SurfaceCurrent, kloC_Scalar>("kloC_SurfaceCurrent", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_SurfaceCurrentState>();
  return table;
}
