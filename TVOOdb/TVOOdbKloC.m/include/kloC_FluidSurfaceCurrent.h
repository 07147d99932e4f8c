#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_FluidSurfaceCurrentState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_FluidSurfaceCurrentState)

 public:
  kloC_FluidSurfaceCurrentState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "FluidSurfaceCurrentState")
};

/// A current per area at the electrolyte's surface.
class TVO_API kloC_FluidSurfaceCurrent final : public kprC_StateAccess<kloC_Scalar, kloC_FluidSurfaceCurrentState> {
  CLS_PERSISTENT(kloC, kloC_FluidSurfaceCurrent)

 public:
  kloC_FluidSurfaceCurrent() = default;
  CategoryEnm Category() const override { return ELECTROCHEMICAL; }

  KPRC_NAMED_CMD(constructorCmd, "FluidSurfaceCurrent")
};
