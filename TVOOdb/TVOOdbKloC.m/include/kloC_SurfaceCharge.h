#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_SurfaceChargeState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_SurfaceChargeState)

 public:
  kloC_SurfaceChargeState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SurfaceChargeState")
};

/// A charge per area.
class TVO_API kloC_SurfaceCharge final : public kprC_StateAccess<kloC_Scalar, kloC_SurfaceChargeState> {
  CLS_PERSISTENT(kloC, kloC_SurfaceCharge)

 public:
  kloC_SurfaceCharge() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "SurfaceCharge")
};
