#pragma once

#include "kloC_Vector.h"

/// Its components in one step.
class TVO_API kloC_ConnectorForceState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_ConnectorForceState)

 public:
  kloC_ConnectorForceState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConnectorForceState")
};

/// Applies forces in the components of connectors: those of a region, or those of a set of a fastener's.
class TVO_API kloC_ConnectorForce final : public kprC_StateAccess<kloC_Vector, kloC_ConnectorForceState> {
  CLS_PERSISTENT(kloC, kloC_ConnectorForce)

 public:
  kloC_ConnectorForce() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  bool NYIForLoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "ConnectorForce")
  KLOC_VECTOR_NAMES(f1, f2, f3)
  KPRC_CMD(connectors)
  KPRC_CMD(fastenerName)
  KPRC_CMD(fastenerSetName)

  cow_String fastenerName;
  cow_String fastenerSetName;
};
