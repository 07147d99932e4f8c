#include "kloC_LineLoad.h"

cls_AttributeTable const& kloC_LineLoadState::Attributes() {
  static auto const table = cls_Describe<kloC_LineLoadState, kloC_VectorState>("kloC_LineLoadState", 203)
                                .Attribute(0, "useC1", &kloC_LineLoadState::useC1)
                                .Attribute(1, "useC3", &kloC_LineLoadState::useC3);
  return table;
}

cls_AttributeTable const& kloC_LineLoad::Attributes() {
  static auto const table = cls_Describe<kloC_LineLoad, kloC_Vector>("kloC_LineLoad", 203)
                                .Attribute(2, "system", &kloC_LineLoad::system)
                                .Attribute(3, "distType", &kloC_LineLoad::distType)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_LineLoadState>();
  return table;
}
