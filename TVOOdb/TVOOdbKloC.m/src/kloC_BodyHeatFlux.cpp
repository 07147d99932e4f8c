#include "kloC_BodyHeatFlux.h"

cls_AttributeTable const& kloC_BodyHeatFluxState::Attributes() {
  static auto const table =
      cls_Describe<kloC_BodyHeatFluxState, kloC_DistributedState>("kloC_BodyHeatFluxState", 2001)
          .Attribute(0, "tableCollectionName", &kloC_BodyHeatFluxState::tableCollectionName);
  return table;
}

cls_AttributeTable const& kloC_BodyHeatFlux::Attributes() {
  static auto const table = cls_Describe<kloC_BodyHeatFlux, kloC_Distributed>("kloC_BodyHeatFlux", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_BodyHeatFluxState>();
  return table;
}

bool kloC_BodyHeatFlux::HasMagnitude(State const& state, int procedure) const {
  auto const& flux = kprC_CheckedCast<kloC_BodyHeatFluxState>(state, __FILE__, __LINE__);
  return !flux.tableCollectionName.ConstGet().IsEmpty() || kloC_Distributed::HasMagnitude(state, procedure);
}
