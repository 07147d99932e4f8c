#include "kloC_DistIonConcBodyFlux.h"

cls_AttributeTable const& kloC_DistIonConcBodyFluxState::Attributes() {
  static auto const table =
      cls_Describe<kloC_DistIonConcBodyFluxState, kloC_DistributedState>("kloC_DistIonConcBodyFluxState", 2512);
  return table;
}

cls_AttributeTable const& kloC_DistIonConcBodyFlux::Attributes() {
  static auto const table = cls_Describe<kloC_DistIonConcBodyFlux, kloC_Distributed>("kloC_DistIonConcBodyFlux", 2512)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_DistIonConcBodyFluxState>();
  return table;
}
