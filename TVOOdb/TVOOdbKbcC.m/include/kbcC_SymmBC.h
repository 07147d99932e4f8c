#pragma once

#include "kbcC_Components.h"

/// A retired kind: models that have it keep it, no menu offers it.
class TVO_API kbcC_SymmBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_SymmBCState)

 public:
  kbcC_SymmBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SymmBCState")
};

/// A plane of symmetry of old models. kbcC_TypeBC has taken its place.
class TVO_API kbcC_SymmBC final : public kbcC_StateAccess<kbcC_BC, kbcC_SymmBCState> {
  CLS_PERSISTENT(kbcC, kbcC_SymmBC)

 public:
  kbcC_SymmBC() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  /// Without a row in the menus, this alone says where the condition may stand.
  bool ValidInPerturbationStep(int procedure, bool flag) const override;

  KPRC_NAMED_CMD(constructorCmd, "SymmBC")
};
