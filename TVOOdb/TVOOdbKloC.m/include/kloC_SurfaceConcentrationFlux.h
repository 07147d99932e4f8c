#pragma once

#include "kloC_Distributed.h"

/// Its magnitude in one step.
class TVO_API kloC_SurfaceConcentrationFluxState final : public kloC_DistributedState {
  CLS_PERSISTENT(kloC, kloC_SurfaceConcentrationFluxState)

 public:
  kloC_SurfaceConcentrationFluxState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SurfaceConcentrationFluxState")
};

/// A flow of diffusing material per area.
class TVO_API kloC_SurfaceConcentrationFlux final
    : public kprC_StateAccess<kloC_Distributed, kloC_SurfaceConcentrationFluxState> {
  CLS_PERSISTENT(kloC, kloC_SurfaceConcentrationFlux)

 public:
  kloC_SurfaceConcentrationFlux() = default;
  CategoryEnm Category() const override { return MASS_DIFFUSION; }

  KPRC_NAMED_CMD(constructorCmd, "SurfaceConcentrationFlux")
};
