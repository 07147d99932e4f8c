#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_ConcentratedPoreFluidState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_ConcentratedPoreFluidState)

 public:
  kloC_ConcentratedPoreFluidState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConcPoreFluidState")
};

/// A volume flow of pore fluid at points.
class TVO_API kloC_ConcentratedPoreFluid final : public kprC_StateAccess<kloC_Scalar, kloC_ConcentratedPoreFluidState> {
  CLS_PERSISTENT(kloC, kloC_ConcentratedPoreFluid)

 public:
  kloC_ConcentratedPoreFluid() = default;
  CategoryEnm Category() const override { return FLUID; }

  KPRC_NAMED_CMD(constructorCmd, "ConcPoreFluid")
};
