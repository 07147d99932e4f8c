#include "kbcC_ConnDisplacementBC.h"

cls_AttributeTable const& kbcC_ConnDisplacementBCState::Attributes() {
  using S = kbcC_ConnDisplacementBCState;
  // 6 is retired, as it is in the displacement of a region.
  static auto const table = cls_Describe<S, kbcC_ConnectorBCState>("kbcC_ConnDisplacementBCState", 203)
                                .Attribute(0, "u1", &S::u1)
                                .Attribute(1, "u2", &S::u2)
                                .Attribute(2, "u3", &S::u3)
                                .Attribute(3, "ur1", &S::ur1)
                                .Attribute(4, "ur2", &S::ur2)
                                .Attribute(5, "ur3", &S::ur3)
                                .Complex(7, "cU1real", "cU1imag", &S::cU1)
                                .Complex(9, "cU2real", "cU2imag", &S::cU2)
                                .Complex(11, "cU3real", "cU3imag", &S::cU3)
                                .Complex(13, "cUR1real", "cUR1imag", &S::cUR1)
                                .Complex(15, "cUR2real", "cUR2imag", &S::cUR2)
                                .Complex(17, "cUR3real", "cUR3imag", &S::cUR3)
                                .Attribute(19, "buckleCase", &S::buckleCase);
  return table;
}

cls_AttributeTable const& kbcC_ConnDisplacementBC::Attributes() {
  static auto const table = cls_Describe<kbcC_ConnDisplacementBC, kbcC_ConnectorBC>("kbcC_ConnDisplacementBC", 203)
                                .Attribute(6, "fixed", &kbcC_ConnDisplacementBC::fixed)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_ConnDisplacementBCState>();
  return table;
}
