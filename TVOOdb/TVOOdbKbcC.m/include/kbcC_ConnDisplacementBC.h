#pragma once

#include "kbcC_ConnectorBC.h"

/// Prescribed relative displacements of a connector in one step, in units of length and radians.
class TVO_API kbcC_ConnDisplacementBCState final : public kbcC_DisplacementValues<kbcC_ConnectorBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ConnDisplacementBCState)

 public:
  kbcC_ConnDisplacementBCState() = default;
  bool Specifies(std::size_t i, unsigned int procedure) const override { return HasValue(i, procedure); }
  KPRC_NAMED_CMD(pythonTypeName, "ConnDisplacementBCState")
};

/// Prescribes the relative displacements of connectors.
///
/// Refuses non-zero values in the initial step, and any where it is fixed.
class TVO_API kbcC_ConnDisplacementBC final : public kbcC_HeldDisplacement<kbcC_ConnectorBC, kbcC_ConnDisplacementBCState> {
  CLS_PERSISTENT(kbcC, kbcC_ConnDisplacementBC)

 public:
  kbcC_ConnDisplacementBC() = default;

  KPRC_NAMED_CMD(constructorCmd, "ConnDisplacementBC")
  KBCC_SIX_COMPONENTS(u1, U1, u2, U2, u3, U3, ur1, UR1, ur2, UR2, ur3, UR3)
  KPRC_CMD(fixed)
  KPRC_CMD(buckleCase)
};
