#pragma once

#include "kbcC_DistributedBC.h"

/// A prescribed temperature in one step.
class TVO_API kbcC_TemperatureBCState final : public kbcC_DistributedBCState {
  CLS_PERSISTENT(kbcC, kbcC_TemperatureBCState)

 public:
  kbcC_TemperatureBCState() = default;
  /// Refuses a degree of freedom that is no temperature of a shell: 43.
  void AssertValid() const override;
  KPRC_NAMED_CMD(pythonTypeName, "TemperatureBCState")
  KPRC_VALUE_CMD(dof)

  mdl_PropAttr<cls_xpListInt> dof;  ///< temperatures through the thickness of a shell: 11 to 31
};

/// Prescribes the temperature of a region.
///
/// A perturbation works on the temperatures of the state that it perturbs, so the condition is built into its steps
/// (STATUS_BUILT_IN) and holds no state there.
class TVO_API kbcC_TemperatureBC final : public kbcC_MagnitudeBC<kbcC_TemperatureBCState> {
  CLS_PERSISTENT(kbcC, kbcC_TemperatureBC)

 public:
  kbcC_TemperatureBC() = default;
  CategoryEnm Category() const override { return THERMAL; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;
  /// Drops the amplitudes that were given in steps whose procedure knows none.
  void UpdateStates() override;

  bool IsActive(mdl_PropagationStatusEnm status) const override;
  bool IsPropagated(mdl_PropagationStatusEnm status) const override;
  bool IsBuiltIn(mdl_PropagationStatusEnm status) const override;

  KPRC_NAMED_CMD(constructorCmd, "TemperatureBC")
  KPRC_CMD(useExtendedDof)

  bool useExtendedDof = false;  ///< the region is of shells: each step names their degrees of freedom

 protected:
  /// Refuses a region of shells for which a step names no degree of freedom: 40.
  void AssertKind() const override;
};
