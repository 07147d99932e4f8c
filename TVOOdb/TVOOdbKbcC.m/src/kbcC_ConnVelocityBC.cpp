#include "kbcC_ConnVelocityBC.h"

cls_AttributeTable const& kbcC_ConnVelocityBCState::Attributes() {
  using S = kbcC_ConnVelocityBCState;
  static auto const table = cls_Describe<S, kbcC_ConnectorBCState>("kbcC_ConnVelocityBCState", 203)
                                .Attribute(0, "v1", &S::v1)
                                .Attribute(1, "v2", &S::v2)
                                .Attribute(2, "v3", &S::v3)
                                .Attribute(3, "vr1", &S::vr1)
                                .Attribute(4, "vr2", &S::vr2)
                                .Attribute(5, "vr3", &S::vr3);
  return table;
}

cls_AttributeTable const& kbcC_ConnVelocityBC::Attributes() {
  static auto const table = cls_Describe<kbcC_ConnVelocityBC, kbcC_ConnectorBC>("kbcC_ConnVelocityBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ConnVelocityBCState>();
  return table;
}
