#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_BodyChargeState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_BodyChargeState)

 public:
  kloC_BodyChargeState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "BodyChargeState")
};

/// A charge per volume.
class TVO_API kloC_BodyCharge final : public kprC_StateAccess<kloC_Scalar, kloC_BodyChargeState> {
  CLS_PERSISTENT(kloC, kloC_BodyCharge)

 public:
  kloC_BodyCharge() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "BodyCharge")
};
