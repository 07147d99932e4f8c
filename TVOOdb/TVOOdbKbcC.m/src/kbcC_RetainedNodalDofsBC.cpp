#include "kbcC_RetainedNodalDofsBC.h"

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_RetainedNodalDofsBCState::Attributes() {
  using S = kbcC_RetainedNodalDofsBCState;
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_RetainedNodalDofsBCState", 1524)
                                .Attribute(0, "u1", &S::u1)
                                .Attribute(1, "u2", &S::u2)
                                .Attribute(2, "u3", &S::u3)
                                .Attribute(3, "ur1", &S::ur1)
                                .Attribute(4, "ur2", &S::ur2)
                                .Attribute(5, "ur3", &S::ur3);
  return table;
}

cls_AttributeTable const& kbcC_RetainedNodalDofsBC::Attributes() {
  static auto const table = cls_Describe<kbcC_RetainedNodalDofsBC, kbcC_BC>("kbcC_RetainedNodalDofsBC", 1524)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_RetainedNodalDofsBCState>();
  return table;
}
