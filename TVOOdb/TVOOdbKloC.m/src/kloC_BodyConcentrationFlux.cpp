#include "kloC_BodyConcentrationFlux.h"

cls_AttributeTable const& kloC_BodyConcentrationFluxState::Attributes() {
  static auto const table =
      cls_Describe<kloC_BodyConcentrationFluxState, kloC_DistributedState>("kloC_BodyConcentrationFluxState", 203);
  return table;
}

cls_AttributeTable const& kloC_BodyConcentrationFlux::Attributes() {
  static auto const table =
      cls_Describe<kloC_BodyConcentrationFlux, kloC_Distributed>("kloC_BodyConcentrationFlux", 203)
          .Constructor(constructorCmd())
          .VariesBy<kloC_BodyConcentrationFluxState>();
  return table;
}
