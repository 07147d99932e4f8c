#include "kbcC_ConnVelocityBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_ConnVelocityBCState::Attributes() {
  static auto const table =
      kbcC_WithComponents(cls_Describe<kbcC_ConnVelocityBCState, kbcC_ConnectorBCState>("kbcC_ConnVelocityBCState", 203));
  return table;
}

cls_AttributeTable const& kbcC_ConnVelocityBC::Attributes() {
  static auto const table = cls_Describe<kbcC_ConnVelocityBC, kbcC_ConnectorBC>("kbcC_ConnVelocityBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ConnVelocityBCState>();
  return table;
}
