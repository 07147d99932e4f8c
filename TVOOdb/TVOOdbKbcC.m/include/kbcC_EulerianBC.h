#pragma once

#include "kbcC_Components.h"

/// How material passes a boundary of an Eulerian mesh in one step.
class TVO_API kbcC_EulerianBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_EulerianBCState)

 public:
  kbcC_EulerianBCState() = default;
  /// Refuses a boundary that lets material in but not out: 106.
  void AssertValid() const override;
  KPRC_NAMED_CMD(pythonTypeName, "EulerianBCState")
  KPRC_VALUE_CMD(definition)
  KPRC_VALUE_CMD(inflowType)
  KPRC_VALUE_CMD(outflowType)

  mdl_PropAttr<kbcC_EulerianDefinitionEnm> definition;
  mdl_PropAttr<kbcC_EulerianInflowEnm> inflowType;
  mdl_PropAttr<kbcC_EulerianOutflowEnm> outflowType;
};

/// A boundary of an Eulerian mesh, through which material flows.
class TVO_API kbcC_EulerianBC final : public kbcC_StateAccess<kbcC_BC, kbcC_EulerianBCState> {
  CLS_PERSISTENT(kbcC, kbcC_EulerianBC)

 public:
  using DefinitionEnm = kbcC_EulerianDefinitionEnm;
  using InflowEnm = kbcC_EulerianInflowEnm;
  using OutflowEnm = kbcC_EulerianOutflowEnm;

  kbcC_EulerianBC() = default;
  CategoryEnm Category() const override { return OTHER_BC; }
  bool AllowedInALoadCase() const override { return false; }
  bool ValidInPerturbationStep(int, bool) const override { return false; }

  KPRC_NAMED_CMD(constructorCmd, "EulerianBC")
};
