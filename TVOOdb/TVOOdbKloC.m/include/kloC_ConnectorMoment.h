#pragma once

#include "kloC_Vector.h"

/// Its components in one step.
class TVO_API kloC_ConnectorMomentState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_ConnectorMomentState)

 public:
  kloC_ConnectorMomentState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConnectorMomentState")
};

/// Applies moments in the components of connectors: those of a region, or those of a set of a fastener's.
class TVO_API kloC_ConnectorMoment final : public kprC_StateAccess<kloC_Vector, kloC_ConnectorMomentState> {
  CLS_PERSISTENT(kloC, kloC_ConnectorMoment)

 public:
  kloC_ConnectorMoment() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  bool NYIForLoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "ConnectorMoment")
  KLOC_VECTOR_NAMES(m1, m2, m3)
  KPRC_CMD(connectors)
  KPRC_CMD(fastenerName)
  KPRC_CMD(fastenerSetName)

  cow_String fastenerName;
  cow_String fastenerSetName;
};
