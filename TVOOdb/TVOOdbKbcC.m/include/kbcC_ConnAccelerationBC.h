#pragma once

#include "kbcC_ConnectorBC.h"

/// Prescribed relative accelerations of a connector in one step, in units of length and radians per unit
/// of time squared.
class TVO_API kbcC_ConnAccelerationBCState final
    : public kbcC_ComponentState<kbcC_ConnAccelerationBCState, kbcC_ConnectorBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ConnAccelerationBCState)

 public:
  kbcC_ConnAccelerationBCState() = default;
  bool Specifies(std::size_t i, unsigned int procedure) const override { return HasValue(i, procedure); }
  KPRC_NAMED_CMD(pythonTypeName, "ConnAccelerationBCState")

  KBCC_REAL_COMPONENTS(kbcC_ConnAccelerationBCState, a1, a2, a3, ar1, ar2, ar3)
};

/// Prescribes the relative accelerations of connectors.
class TVO_API kbcC_ConnAccelerationBC final : public kbcC_ComponentBC<kbcC_ConnectorBC, kbcC_ConnAccelerationBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ConnAccelerationBC)

 public:
  kbcC_ConnAccelerationBC() = default;

  KPRC_NAMED_CMD(constructorCmd, "ConnAccelerationBC")
  KBCC_SIX_COMPONENTS(a1, A1, a2, A2, a3, A3, ar1, AR1, ar2, AR2, ar3, AR3)
};
