#pragma once

#include "kloC_Distributed.h"

/// Its magnitude in one step.
class TVO_API kloC_SurfacePoreFluidState final : public kloC_DistributedState {
  CLS_PERSISTENT(kloC, kloC_SurfacePoreFluidState)

 public:
  kloC_SurfacePoreFluidState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SurfacePoreFluidState")
};

/// A flow velocity of pore fluid out of a surface.
class TVO_API kloC_SurfacePoreFluid final : public kprC_StateAccess<kloC_Distributed, kloC_SurfacePoreFluidState> {
  CLS_PERSISTENT(kloC, kloC_SurfacePoreFluid)

 public:
  kloC_SurfacePoreFluid() = default;
  CategoryEnm Category() const override { return FLUID; }

  KPRC_NAMED_CMD(constructorCmd, "SurfacePoreFluid")
};
