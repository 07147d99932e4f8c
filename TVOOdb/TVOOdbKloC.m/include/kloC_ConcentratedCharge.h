#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_ConcentratedChargeState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_ConcentratedChargeState)

 public:
  kloC_ConcentratedChargeState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConcChargeState")
};

/// A charge at points.
class TVO_API kloC_ConcentratedCharge final : public kprC_StateAccess<kloC_Scalar, kloC_ConcentratedChargeState> {
  CLS_PERSISTENT(kloC, kloC_ConcentratedCharge)

 public:
  kloC_ConcentratedCharge() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "ConcCharge")
};
