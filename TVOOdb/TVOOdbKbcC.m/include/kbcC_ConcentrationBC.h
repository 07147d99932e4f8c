#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed normalized concentration in one step.
class TVO_API kbcC_ConcentrationBCState final : public kbcC_DistributedBCState {
  CLS_PERSISTENT(kbcC, kbcC_ConcentrationBCState)

 public:
  kbcC_ConcentrationBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConcentrationBCState")
};

/// Prescribes the concentration of what diffuses, over its solubility.
class TVO_API kbcC_ConcentrationBC final : public kbcC_MagnitudeBC<kbcC_ConcentrationBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ConcentrationBC)

 public:
  kbcC_ConcentrationBC() = default;
  CategoryEnm Category() const override { return MASS_DIFFUSION; }

  KPRC_NAMED_CMD(constructorCmd, "ConcentrationBC")
};
