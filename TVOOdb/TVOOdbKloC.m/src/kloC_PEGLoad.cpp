#include "kloC_PEGLoad.h"

cls_AttributeTable const& kloC_PEGLoadState::Attributes() {
  static auto const table = cls_Describe<kloC_PEGLoadState, kloC_VectorState>("kloC_PEGLoadState", 203);
  return table;
}

cls_AttributeTable const& kloC_PEGLoad::Attributes() {
  static auto const table = cls_Describe<kloC_PEGLoad, kloC_Vector>("kloC_PEGLoad", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_PEGLoadState>();
  return table;
}
