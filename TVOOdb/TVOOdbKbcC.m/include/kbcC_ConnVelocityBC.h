#pragma once

#include "kbcC_ConnectorBC.h"

/// Prescribed relative velocities of a connector in one step, in units of length and radians per unit of time.
class TVO_API kbcC_ConnVelocityBCState final
    : public kbcC_ComponentState<kbcC_ConnVelocityBCState, kbcC_ConnectorBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ConnVelocityBCState)

 public:
  kbcC_ConnVelocityBCState() = default;
  bool Specifies(std::size_t i, unsigned int procedure) const override { return HasValue(i, procedure); }
  KPRC_NAMED_CMD(pythonTypeName, "ConnVelocityBCState")

  KBCC_REAL_COMPONENTS(kbcC_ConnVelocityBCState, v1, v2, v3, vr1, vr2, vr3)
};

/// Prescribes the relative velocities of connectors.
class TVO_API kbcC_ConnVelocityBC final : public kbcC_ComponentBC<kbcC_ConnectorBC, kbcC_ConnVelocityBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ConnVelocityBC)

 public:
  kbcC_ConnVelocityBC() = default;

  KPRC_NAMED_CMD(constructorCmd, "ConnVelocityBC")
  KBCC_SIX_COMPONENTS(v1, V1, v2, V2, v3, V3, vr1, VR1, vr2, VR2, vr3, VR3)
};
