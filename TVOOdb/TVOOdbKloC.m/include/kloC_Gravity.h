#pragma once

#include "kloC_Vector.h"

/// Its components in one step, in length per time squared.
class TVO_API kloC_GravityState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_GravityState)

 public:
  kloC_GravityState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "GravityState")
};

/// A uniform acceleration of the whole model or of a region.
class TVO_API kloC_Gravity final : public kprC_StateAccess<kloC_Vector, kloC_GravityState> {
  CLS_PERSISTENT(kloC, kloC_Gravity)

 public:
  kloC_Gravity() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "Gravity")
  KLOC_VECTOR_NAMES(comp1, comp2, comp3)

 protected:
  /// In an axisymmetric model there is gravity along the axis alone: 46.
  void AssertInSpace(kloC_SpaceEnm space) const override;
};
