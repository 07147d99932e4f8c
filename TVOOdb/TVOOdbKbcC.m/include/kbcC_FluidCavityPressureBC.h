#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed pressure of a fluid cavity in one step, in units of stress.
class TVO_API kbcC_FluidCavityPressureBCState final : public kbcC_ComplexMagnitudeState {
  CLS_PERSISTENT(kbcC, kbcC_FluidCavityPressureBCState)

 public:
  kbcC_FluidCavityPressureBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "FluidCavityPressureBCState")
};

/// Prescribes the pressure of a fluid cavity, which an interaction defines.
class TVO_API kbcC_FluidCavityPressureBC final : public kbcC_MagnitudeBC<kbcC_FluidCavityPressureBCState> {
  CLS_PERSISTENT(kbcC, kbcC_FluidCavityPressureBC)

 public:
  kbcC_FluidCavityPressureBC() = default;
  CategoryEnm Category() const override { return OTHER_BC; }

  KPRC_NAMED_CMD(constructorCmd, "FluidCavityPressureBC")
  KPRC_CMD(fluidCavity)

  cow_String fluidCavity;  ///< name of the interaction

 protected:
  /// What is fixed here may go to the first analysis step.
  bool IsHeldInPlace() const override { return false; }
};
