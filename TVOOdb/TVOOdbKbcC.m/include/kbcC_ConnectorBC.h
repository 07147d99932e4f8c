#pragma once

#include "kbcC_Components.h"

/// What is prescribed of a connector's relative motion in one step, and which of its components the connector has.
class TVO_API kbcC_ConnectorBCState : public kbcC_BCState {
  CLS_ABSTRACT(kbcC, kbcC_ConnectorBCState)

 public:
  /// Whether a value is given for a component in a step of that procedure.
  virtual bool Specifies(std::size_t i, unsigned int procedure) const = 0;
  /// Names of the components that are given though the connector has not got them, such as "corm2, corm5".
  cow_String UnavailableComponents(unsigned int procedure) const;

  KPRC_CMD(corm1) KPRC_CMD(corm2) KPRC_CMD(corm3) KPRC_CMD(corm4) KPRC_CMD(corm5) KPRC_CMD(corm6)

  bool corm1 = true, corm2 = true, corm3 = true, corm4 = true, corm5 = true, corm6 = true;
};

/// A prescribed relative motion of connectors: those of a region, or those of a set of a fastener's.
class TVO_API kbcC_ConnectorBC : public kbcC_BC {
  CLS_ABSTRACT(kbcC, kbcC_ConnectorBC)

 public:
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  bool NYIForLoadCase() const override { return true; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;

  KPRC_CMD(fastenerName)
  KPRC_CMD(fastenerSetName)

  cow_String fastenerName;
  cow_String fastenerSetName;

 protected:
  /// Refuses an object without connectors, and values for components that these have not got.
  void AssertKind() const override;
};
