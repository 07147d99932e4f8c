#include "kloC_IonConcentrationFlux.h"

cls_AttributeTable const& kloC_IonConcentrationFluxState::Attributes() {
  static auto const table =
      cls_Describe<kloC_IonConcentrationFluxState, kloC_ScalarState>("kloC_IonConcentrationFluxState", 2509);
  return table;
}

cls_AttributeTable const& kloC_IonConcentrationFlux::Attributes() {
  static auto const table = cls_Describe<kloC_IonConcentrationFlux, kloC_Scalar>("kloC_IonConcentrationFlux", 2509)
                                .Attribute(0, "dof", &kloC_IonConcentrationFlux::dof)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_IonConcentrationFluxState>();
  return table;
}

void kloC_IonConcentrationFlux::AssertKind() const { kloC_Assert(dof == 33, 83); }
