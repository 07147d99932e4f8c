#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed flow of material in one step, in units of mass per unit of time.
class TVO_API kbcC_MassFlowBCState final : public kbcC_ComplexMagnitudeState {
  CLS_PERSISTENT(kbcC, kbcC_MassFlowBCState)

 public:
  kbcC_MassFlowBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "MassFlowBCState")
};

/// Prescribes the flow of material through connectors.
class TVO_API kbcC_MassFlowBC final : public kbcC_MagnitudeBC<kbcC_MassFlowBCState> {
  CLS_PERSISTENT(kbcC, kbcC_MassFlowBC)

 public:
  kbcC_MassFlowBC() = default;
  CategoryEnm Category() const override { return OTHER_BC; }

  KPRC_NAMED_CMD(constructorCmd, "MassFlowBC")
};
