#pragma once

#include "kbcC_Components.h"

/// A prescribed displacement or rotation in one step, in units of length and radians.
class TVO_API kbcC_DisplacementBCState final : public kbcC_DisplacementValues<kbcC_BCState> {
  CLS_PERSISTENT(kbcC, kbcC_DisplacementBCState)

 public:
  kbcC_DisplacementBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "DisplacementBCState")
};

/// Prescribes displacements and rotations of a region.
///
/// Refuses non-zero values in the initial step, and any where it is fixed.
class TVO_API kbcC_DisplacementBC final : public kbcC_HeldDisplacement<kbcC_BC, kbcC_DisplacementBCState> {
  CLS_PERSISTENT(kbcC, kbcC_DisplacementBC)

 public:
  kbcC_DisplacementBC() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;

  KPRC_NAMED_CMD(constructorCmd, "DisplacementBC")
  KBCC_SIX_COMPONENTS(u1, U1, u2, U2, u3, U3, ur1, UR1, ur2, UR2, ur3, UR3)
  KPRC_CMD(fixed)
  KPRC_CMD(buckleCase)
};
