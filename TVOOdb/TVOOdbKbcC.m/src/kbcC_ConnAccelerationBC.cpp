#include "kbcC_ConnAccelerationBC.h"

cls_AttributeTable const& kbcC_ConnAccelerationBCState::Attributes() {
  using S = kbcC_ConnAccelerationBCState;
  static auto const table = cls_Describe<S, kbcC_ConnectorBCState>("kbcC_ConnAccelerationBCState", 203)
                                .Attribute(0, "a1", &S::a1)
                                .Attribute(1, "a2", &S::a2)
                                .Attribute(2, "a3", &S::a3)
                                .Attribute(3, "ar1", &S::ar1)
                                .Attribute(4, "ar2", &S::ar2)
                                .Attribute(5, "ar3", &S::ar3);
  return table;
}

cls_AttributeTable const& kbcC_ConnAccelerationBC::Attributes() {
  static auto const table = cls_Describe<kbcC_ConnAccelerationBC, kbcC_ConnectorBC>("kbcC_ConnAccelerationBC", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ConnAccelerationBCState>();
  return table;
}
