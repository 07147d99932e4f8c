#pragma once

#include "kloC_Vector.h"

/// Its components in one step.
class TVO_API kloC_PEGLoadState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_PEGLoadState)

 public:
  kloC_PEGLoadState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "PEGLoadState")
};

/// An axial force and two moments on a part in generalized plane strain.
class TVO_API kloC_PEGLoad final : public kprC_StateAccess<kloC_Vector, kloC_PEGLoadState> {
  CLS_PERSISTENT(kloC, kloC_PEGLoad)

 public:
  kloC_PEGLoad() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "PEGLoad")
  KLOC_VECTOR_NAMES(comp1, comp2, comp3)
};
