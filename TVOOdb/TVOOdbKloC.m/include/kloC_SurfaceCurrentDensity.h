#pragma once

#include "kloC_Vector.h"

/// Its components in one step.
class TVO_API kloC_SurfaceCurrentDensityState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_SurfaceCurrentDensityState)

 public:
  kloC_SurfaceCurrentDensityState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SurfaceCurrentDensityState")
};

/// A current density over a surface.
class TVO_API kloC_SurfaceCurrentDensity final : public kprC_StateAccess<kloC_Vector, kloC_SurfaceCurrentDensityState> {
  CLS_PERSISTENT(kloC, kloC_SurfaceCurrentDensity)

 public:
  kloC_SurfaceCurrentDensity() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "SurfaceCurrentDensity")
  KLOC_VECTOR_NAMES(comp1, comp2, comp3)
};
