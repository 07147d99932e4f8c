#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_ConcentratedCurrentState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_ConcentratedCurrentState)

 public:
  kloC_ConcentratedCurrentState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConcCurrentState")
};

/// A current at points.
class TVO_API kloC_ConcentratedCurrent final : public kprC_StateAccess<kloC_Scalar, kloC_ConcentratedCurrentState> {
  CLS_PERSISTENT(kloC, kloC_ConcentratedCurrent)

 public:
  kloC_ConcentratedCurrent() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "ConcCurrent")
};
