#pragma once

#include "kloC_Values.h"

/// The load cases in force in one step. Refuses a step without any: 81.
class TVO_API kloC_SubstructureLoadState final : public kloC_LoadState {
  CLS_PERSISTENT(kloC, kloC_SubstructureLoadState)

 public:
  kloC_SubstructureLoadState() = default;
  void AssertValid() const override;
  KPRC_NAMED_CMD(pythonTypeName, "SubstructureLoadState")

  mdl_PropAttr<cls_xpListString> m_LoadCaseNames;
};

/// Applies load cases that a substructure was generated with.
class TVO_API kloC_SubstructureLoad final : public kprC_StateAccess<kloC_Load, kloC_SubstructureLoadState> {
  CLS_PERSISTENT(kloC, kloC_SubstructureLoad)

 public:
  kloC_SubstructureLoad() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "SubstructureLoad")
  KPRC_NAMED_CMD(loadCaseNamesCmd, "loadCaseNames")
};
