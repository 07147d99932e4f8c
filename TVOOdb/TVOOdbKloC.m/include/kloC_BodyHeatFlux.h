#pragma once

#include "kloC_Distributed.h"

/// Its magnitude in one step, or the collection of tables that gives it.
class TVO_API kloC_BodyHeatFluxState final : public kloC_DistributedState {
  CLS_PERSISTENT(kloC, kloC_BodyHeatFluxState)

 public:
  kloC_BodyHeatFluxState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "BodyHeatFluxState")

  mdl_PropAttr<cow_String> tableCollectionName;
};

/// A heat flow per volume.
class TVO_API kloC_BodyHeatFlux final : public kprC_StateAccess<kloC_Distributed, kloC_BodyHeatFluxState> {
  CLS_PERSISTENT(kloC, kloC_BodyHeatFlux)

 public:
  kloC_BodyHeatFlux() = default;
  CategoryEnm Category() const override { return THERMAL; }

  KPRC_NAMED_CMD(constructorCmd, "BodyHeatFlux")
  KPRC_VALUE_CMD(tableCollectionName)

 protected:
  /// Tables may give it instead.
  bool HasMagnitude(State const& state, int procedure) const override;
};
