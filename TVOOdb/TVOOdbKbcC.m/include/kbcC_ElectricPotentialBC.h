#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed electric potential in one step.
class TVO_API kbcC_ElectricPotentialBCState final : public kbcC_ComplexMagnitudeState {
  CLS_PERSISTENT(kbcC, kbcC_ElectricPotentialBCState)

 public:
  kbcC_ElectricPotentialBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ElectricPotentialBCState")
};

/// Prescribes the electric potential of a conducting region.
class TVO_API kbcC_ElectricPotentialBC final : public kbcC_MagnitudeBC<kbcC_ElectricPotentialBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ElectricPotentialBC)

 public:
  kbcC_ElectricPotentialBC() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "ElectricPotentialBC")
};
