#pragma once

#include "kloC_RotationAxis.h"
#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_CoriolisForceState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_CoriolisForceState)

 public:
  kloC_CoriolisForceState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "CoriolisForceState")
};

/// The Coriolis force of a rotation about an axis, by density times angular velocity.
class TVO_API kloC_CoriolisForce final
    : public kprC_StateAccess<kloC_Scalar, kloC_CoriolisForceState>, public kloC_RotationAxis {
  CLS_PERSISTENT(kloC, kloC_CoriolisForce)

 public:
  kloC_CoriolisForce() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "CoriolisForce")

 protected:
  /// Refuses an axis without direction.
  void AssertKind() const override { AssertAxis(); }
};
