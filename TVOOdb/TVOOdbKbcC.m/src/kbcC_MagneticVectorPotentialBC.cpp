#include "kbcC_MagneticVectorPotentialBC.h"

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_MagneticVectorPotentialBCState::Attributes() {
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_MagneticVectorPotentialBCState", 1630)
                                .Attribute(0, "component1", &S::component1)
                                .Attribute(1, "component2", &S::component2)
                                .Attribute(2, "component3", &S::component3)
                                .Complex(4, "cComponent1real", "cComponent1imag", &S::cComponent1)
                                .Complex(6, "cComponent2real", "cComponent2imag", &S::cComponent2)
                                .Complex(8, "cComponent3real", "cComponent3imag", &S::cComponent3);
  return table;
}

cls_AttributeTable const& kbcC_MagneticVectorPotentialBC::Attributes() {
  using BC = kbcC_MagneticVectorPotentialBC;
  static auto const table = cls_Describe<BC, kbcC_BC>("kbcC_MagneticVectorPotentialBC", 1630)
                                .Attribute(3, "fixed", &BC::fixed)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_MagneticVectorPotentialBCState>();
  return table;
}

void kbcC_MagneticVectorPotentialBC::AssertDefinition() const {
  kbcC_Assert(distribution == UNIFORM || distribution == USER_DEFINED, 90);
  kbcC_BC::AssertDefinition();
}
