#include "kbcC_ConnDisplacementBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_ConnDisplacementBCState::Attributes() {
  static auto const table =
      kbcC_WithDisplacements(cls_Describe<kbcC_ConnDisplacementBCState, kbcC_ConnectorBCState>("kbcC_ConnDisplacementBCState", 203));
  return table;
}

cls_AttributeTable const& kbcC_ConnDisplacementBC::Attributes() {
  static auto const table = cls_Describe<kbcC_ConnDisplacementBC, kbcC_ConnectorBC>("kbcC_ConnDisplacementBC", 203)
                                .Attribute(6, "fixed", &kbcC_ConnDisplacementBC::fixed)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ConnDisplacementBCState>();
  return table;
}
