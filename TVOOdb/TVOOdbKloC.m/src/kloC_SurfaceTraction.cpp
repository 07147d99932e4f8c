#include "kloC_SurfaceTraction.h"

cls_AttributeTable const& kloC_SurfaceTractionState::Attributes() {
  static auto const table =
      cls_Describe<kloC_SurfaceTractionState, kloC_TractionState>("kloC_SurfaceTractionState", 409);
  return table;
}

cls_AttributeTable const& kloC_SurfaceTraction::Attributes() {
  static auto const table = cls_Describe<kloC_SurfaceTraction, kloC_Traction>("kloC_SurfaceTraction", 409)
                                .Attribute(0, "traction", &kloC_SurfaceTraction::traction)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_SurfaceTractionState>();
  return table;
}
