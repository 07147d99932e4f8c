#pragma once

#include "kbcC_Components.h"

/// A prescribed acceleration or angular acceleration in one step, in units of length and radians per unit of time squared.
class TVO_API kbcC_AccelerationBCState final : public kbcC_ComponentState<kbcC_AccelerationBCState, kbcC_BCState> {
  CLS_PERSISTENT(kbcC, kbcC_AccelerationBCState)

 public:
  kbcC_AccelerationBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "AccelerationBCState")

  KBCC_REAL_COMPONENTS(kbcC_AccelerationBCState, a1, a2, a3, ar1, ar2, ar3)
};

/// Prescribes accelerations and angular accelerations of a region. Refuses a distribution by a discrete field.
class TVO_API kbcC_AccelerationBC final : public kbcC_ComponentBC<kbcC_BC, kbcC_AccelerationBCState> {
  CLS_PERSISTENT(kbcC, kbcC_AccelerationBC)

 public:
  kbcC_AccelerationBC() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;

  KPRC_NAMED_CMD(constructorCmd, "AccelerationBC")
  KBCC_SIX_COMPONENTS(a1, A1, a2, A2, a3, A3, ar1, AR1, ar2, AR2, ar3, AR3)

 protected:
  void AssertKind() const override;
};
