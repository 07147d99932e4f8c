#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed electric potential of an electrolyte in one step.
class TVO_API kbcC_ElectricPotentialElectrolyteBCState final : public kbcC_ComplexMagnitudeState {
  CLS_PERSISTENT(kbcC, kbcC_ElectricPotentialElectrolyteBCState)

 public:
  kbcC_ElectricPotentialElectrolyteBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ElectricPotentialElectrolyteBCState")
};

/// Prescribes the electric potential of the electrolyte in a region.
class TVO_API kbcC_ElectricPotentialElectrolyteBC final
    : public kbcC_MagnitudeBC<kbcC_ElectricPotentialElectrolyteBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ElectricPotentialElectrolyteBC)

 public:
  kbcC_ElectricPotentialElectrolyteBC() = default;
  CategoryEnm Category() const override { return ELECTROCHEMICAL; }

  KPRC_NAMED_CMD(constructorCmd, "ElectricPotentialElectrolyteBC")
};
