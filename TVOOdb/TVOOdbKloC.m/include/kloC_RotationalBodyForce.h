#pragma once

#include "kloC_RotationAxis.h"
#include "kloC_Scalar.h"

/// Its magnitude in one step, in radians per time or per time squared.
class TVO_API kloC_RotationalBodyForceState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_RotationalBodyForceState)

 public:
  kloC_RotationalBodyForceState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "RotationalBodyForceState")
};

/// The inertia of a rotation about an axis: centrifugal, by the angular velocity, or rotary, by the angular
/// acceleration.
class TVO_API kloC_RotationalBodyForce final
    : public kprC_StateAccess<kloC_Scalar, kloC_RotationalBodyForceState>, public kloC_RotationAxis {
  CLS_PERSISTENT(kloC, kloC_RotationalBodyForce)

 public:
  kloC_RotationalBodyForce() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "RotationalBodyForce")
  KPRC_CMD(centrifugal)
  KPRC_CMD(rotaryAcceleration)

  bool centrifugal = false;
  bool rotaryAcceleration = false;

 protected:
  /// Refuses a load that is neither kind or both, 43, and an axis without direction.
  void AssertKind() const override;
  /// An axisymmetric model turns about its own axis, and nothing there speeds it up: 44, 45.
  void AssertInSpace(kloC_SpaceEnm space) const override;
};
