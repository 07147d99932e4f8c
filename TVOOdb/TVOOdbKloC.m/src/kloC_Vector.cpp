#include "kloC_Vector.h"

cls_AttributeTable const& kloC_VectorState::Attributes() {
  static auto const table = cls_Describe<kloC_VectorState, kloC_LoadState>("kloC_VectorState", 203)
                                .Attribute(0, "c1", &kloC_VectorState::c1)
                                .Attribute(1, "c2", &kloC_VectorState::c2)
                                .Attribute(2, "c3", &kloC_VectorState::c3);
  return table;
}

cls_AttributeTable const& kloC_Vector::Attributes() {
  static auto const table = cls_Describe<kloC_Vector, kloC_Load>("kloC_Vector", 1646)
                                .Attribute(3, "useComplex", &kloC_Vector::useComplex)
                                .Complex(4, "complexC1Real", "complexC1Imag", &kloC_Vector::complexC1)
                                .Complex(6, "complexC2Real", "complexC2Imag", &kloC_Vector::complexC2)
                                .Complex(8, "complexC3Real", "complexC3Imag", &kloC_Vector::complexC3)
                                .Attribute(10, "distribution", &kloC_Vector::distribution);
  return table;
}
