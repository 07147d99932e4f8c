#include "kloC_BodyCurrentDensity.h"

cls_AttributeTable const& kloC_BodyCurrentDensityState::Attributes() {
  static auto const table =
      cls_Describe<kloC_BodyCurrentDensityState, kloC_VectorState>("kloC_BodyCurrentDensityState", 1626);
  return table;
}

cls_AttributeTable const& kloC_BodyCurrentDensity::Attributes() {
  static auto const table = cls_Describe<kloC_BodyCurrentDensity, kloC_Vector>("kloC_BodyCurrentDensity", 1626)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_BodyCurrentDensityState>();
  return table;
}
