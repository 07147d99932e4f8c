#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed pore pressure in one step, in units of stress.
class TVO_API kbcC_PorePressureBCState final : public kbcC_DistributedBCState {
  CLS_PERSISTENT(kbcC, kbcC_PorePressureBCState)

 public:
  kbcC_PorePressureBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "PorePressureBCState")
};

/// Prescribes the pressure of the fluid in the pores of a region.
class TVO_API kbcC_PorePressureBC final : public kbcC_MagnitudeBC<kbcC_PorePressureBCState> {
  CLS_PERSISTENT(kbcC, kbcC_PorePressureBC)

 public:
  kbcC_PorePressureBC() = default;
  CategoryEnm Category() const override { return OTHER_BC; }

  KPRC_NAMED_CMD(constructorCmd, "PorePressureBC")
};
