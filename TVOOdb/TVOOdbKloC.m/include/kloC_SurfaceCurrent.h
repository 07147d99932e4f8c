#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_SurfaceCurrentState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_SurfaceCurrentState)

 public:
  kloC_SurfaceCurrentState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SurfaceCurrentState")
};

/// A current per area.
class TVO_API kloC_SurfaceCurrent final : public kprC_StateAccess<kloC_Scalar, kloC_SurfaceCurrentState> {
  CLS_PERSISTENT(kloC, kloC_SurfaceCurrent)

 public:
  kloC_SurfaceCurrent() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "SurfaceCurrent")
};
