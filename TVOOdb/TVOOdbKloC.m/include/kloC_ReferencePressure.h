#pragma once

#include "kloC_Scalar.h"

/// The reference pressure in one step. Refuses one below zero: 77.
class TVO_API kloC_ReferencePressureState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_ReferencePressureState)

 public:
  kloC_ReferencePressureState() = default;
  void AssertValid() const override;
  KPRC_NAMED_CMD(pythonTypeName, "ReferencePressureState")
};

/// The pressure to which those of a flow are relative. Zero is a pressure, too.
class TVO_API kloC_ReferencePressure final : public kprC_StateAccess<kloC_Scalar, kloC_ReferencePressureState> {
  CLS_PERSISTENT(kloC, kloC_ReferencePressure)

 public:
  kloC_ReferencePressure() = default;
  CategoryEnm Category() const override { return FLUID; }

  KPRC_NAMED_CMD(constructorCmd, "ReferencePressure")

 protected:
  bool HasMagnitude(State const&, int) const override { return true; }
};
