#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_InwardVolAccelState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_InwardVolAccelState)

 public:
  kloC_InwardVolAccelState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "InwardVolAccelState")
};

/// An inward acceleration of the acoustic medium's volume at points.
class TVO_API kloC_InwardVolAccel final : public kprC_StateAccess<kloC_Scalar, kloC_InwardVolAccelState> {
  CLS_PERSISTENT(kloC, kloC_InwardVolAccel)

 public:
  kloC_InwardVolAccel() = default;
  CategoryEnm Category() const override { return ACOUSTIC; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "InwardVolAccel")
};
