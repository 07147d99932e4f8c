#pragma once

#include "kbcC_Components.h"

/// What a support or a plane of symmetry holds in one step.
class TVO_API kbcC_TypeBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_TypeBCState)

 public:
  kbcC_TypeBCState() = default;
  /// A type has no magnitude: what is held stays held when a perturbation starts from zero.
  void Zero() override;
  bool IsModified() const override;
  /// Whether anything but the buckling case was given in this step.
  bool IsTypeEdited() const { return kbcC_BCState::IsModified(); }
  KPRC_NAMED_CMD(pythonTypeName, "TypeBCState")
  KPRC_VALUE_CMD(typeName)
  KPRC_CMD(buckleCase)

  mdl_PropAttr<kbcC_TypeNameEnm> typeName;
  kbcC_BucklingCaseEnm buckleCase = kbcC_BucklingCaseEnm::NOT_APPLICABLE;
};

/// A plane of symmetry or antisymmetry, a pinned or an encastered support. Its type is given where it is created.
class TVO_API kbcC_TypeBC final : public kbcC_StateAccess<kbcC_BC, kbcC_TypeBCState> {
  CLS_PERSISTENT(kbcC, kbcC_TypeBC)

 public:
  using TypeNameEnm = kbcC_TypeNameEnm;

  kbcC_TypeBC() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;

  KPRC_NAMED_CMD(constructorCmd, "TypeBC")

 protected:
  /// Refuses an edit behind the step that creates: 46. The buckling case may change.
  void AssertKind() const override;
};
