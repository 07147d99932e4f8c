#include "kbcC_ConnAccelerationBC.h"

#include "kbcC_describeComponents.h"

cls_AttributeTable const& kbcC_ConnAccelerationBCState::Attributes() {
  static auto const table =
      kbcC_WithComponents(cls_Describe<kbcC_ConnAccelerationBCState, kbcC_ConnectorBCState>("kbcC_ConnAccelerationBCState", 203));
  return table;
}

cls_AttributeTable const& kbcC_ConnAccelerationBC::Attributes() {
  static auto const table = cls_Describe<kbcC_ConnAccelerationBC, kbcC_ConnectorBC>("kbcC_ConnAccelerationBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ConnAccelerationBCState>();
  return table;
}
