#pragma once

#include "kbcC_Components.h"

/// A prescribed velocity or angular velocity in one step, in units of length and radians per unit of time.
class TVO_API kbcC_VelocityBCState final : public kbcC_ComponentState<kbcC_VelocityBCState, kbcC_BCState> {
  CLS_PERSISTENT(kbcC, kbcC_VelocityBCState)

 public:
  kbcC_VelocityBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "VelocityBCState")

  KBCC_REAL_COMPONENTS(kbcC_VelocityBCState, v1, v2, v3, vr1, vr2, vr3)
};

/// Prescribes velocities and angular velocities of a region. Refuses a distribution by a discrete field.
class TVO_API kbcC_VelocityBC final : public kbcC_ComponentBC<kbcC_BC, kbcC_VelocityBCState> {
  CLS_PERSISTENT(kbcC, kbcC_VelocityBC)

 public:
  kbcC_VelocityBC() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;

  KPRC_NAMED_CMD(constructorCmd, "VelocityBC")
  KBCC_SIX_COMPONENTS(v1, V1, v2, V2, v3, V3, vr1, VR1, vr2, VR2, vr3, VR3)

 protected:
  void AssertDefinition() const override;
};
