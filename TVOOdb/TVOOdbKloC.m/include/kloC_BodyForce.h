#pragma once

#include "kloC_Vector.h"

/// Its components in one step, in force per volume.
class TVO_API kloC_BodyForceState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_BodyForceState)

 public:
  kloC_BodyForceState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "BodyForceState")
};

/// A force per volume.
class TVO_API kloC_BodyForce final : public kprC_StateAccess<kloC_Vector, kloC_BodyForceState> {
  CLS_PERSISTENT(kloC, kloC_BodyForce)

 public:
  kloC_BodyForce() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  /// The kind has had a distribution of its own for longer than all vectors have one; either may be set.
  std::optional<kloC_DistributionEnm> Distribution() const override {
    return distType != kloC_DistributionEnm::UNIFORM ? distType : distribution;
  }

  KPRC_NAMED_CMD(constructorCmd, "BodyForce")
  KLOC_VECTOR_NAMES(comp1, comp2, comp3)

  kloC_DistributionEnm distType = kloC_DistributionEnm::UNIFORM;
};
