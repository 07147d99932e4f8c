#pragma once

#include "kloC_Distributed.h"

/// Its magnitude in one step.
class TVO_API kloC_SurfaceHeatFluxState final : public kloC_DistributedState {
  CLS_PERSISTENT(kloC, kloC_SurfaceHeatFluxState)

 public:
  kloC_SurfaceHeatFluxState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SurfaceHeatFluxState")
};

/// A heat flow per area.
class TVO_API kloC_SurfaceHeatFlux final : public kprC_StateAccess<kloC_Distributed, kloC_SurfaceHeatFluxState> {
  CLS_PERSISTENT(kloC, kloC_SurfaceHeatFlux)

 public:
  kloC_SurfaceHeatFlux() = default;
  CategoryEnm Category() const override { return THERMAL; }

  KPRC_NAMED_CMD(constructorCmd, "SurfaceHeatFlux")
};
