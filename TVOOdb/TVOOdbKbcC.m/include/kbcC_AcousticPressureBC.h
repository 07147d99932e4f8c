#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed acoustic pressure in one step, in units of stress.
class TVO_API kbcC_AcousticPressureBCState final : public kbcC_ComplexMagnitudeState {
  CLS_PERSISTENT(kbcC, kbcC_AcousticPressureBCState)

 public:
  kbcC_AcousticPressureBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "AcousticPressureBCState")
};

/// Prescribes the pressure of an acoustic medium.
class TVO_API kbcC_AcousticPressureBC final : public kbcC_MagnitudeBC<kbcC_AcousticPressureBCState> {
  CLS_PERSISTENT(kbcC, kbcC_AcousticPressureBC)

 public:
  kbcC_AcousticPressureBC() = default;
  CategoryEnm Category() const override { return ACOUSTIC; }

  KPRC_NAMED_CMD(constructorCmd, "AcousticPressureBC")
};
