#pragma once

#include "kloC_Vector.h"

/// Its components in one step.
class TVO_API kloC_BodyCurrentDensityState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_BodyCurrentDensityState)

 public:
  kloC_BodyCurrentDensityState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "BodyCurrentDensityState")
};

/// A current density over a volume.
class TVO_API kloC_BodyCurrentDensity final : public kprC_StateAccess<kloC_Vector, kloC_BodyCurrentDensityState> {
  CLS_PERSISTENT(kloC, kloC_BodyCurrentDensity)

 public:
  kloC_BodyCurrentDensity() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "BodyCurrentDensity")
  KLOC_VECTOR_NAMES(comp1, comp2, comp3)
};
