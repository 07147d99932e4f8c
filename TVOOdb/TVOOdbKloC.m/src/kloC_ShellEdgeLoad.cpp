#include "kloC_ShellEdgeLoad.h"

cls_AttributeTable const& kloC_ShellEdgeLoadState::Attributes() {
  static auto const table = cls_Describe<kloC_ShellEdgeLoadState, kloC_TractionState>("kloC_ShellEdgeLoadState", 414);
  return table;
}

cls_AttributeTable const& kloC_ShellEdgeLoad::Attributes() {
  static auto const table = cls_Describe<kloC_ShellEdgeLoad, kloC_Traction>("kloC_ShellEdgeLoad", 414)
                                .Attribute(0, "traction", &kloC_ShellEdgeLoad::traction)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_ShellEdgeLoadState>();
  return table;
}
