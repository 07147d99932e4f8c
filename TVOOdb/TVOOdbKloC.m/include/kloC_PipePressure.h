#pragma once

#include "kloC_Pressure.h"

/// The pressure in one step, in force per area.
class TVO_API kloC_PipePressureState final : public kloC_PressureState {
  CLS_PERSISTENT(kloC, kloC_PipePressureState)

 public:
  kloC_PipePressureState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "PipePressureState")
};

/// A pressure in or on a pipe.
class TVO_API kloC_PipePressure final : public kprC_StateAccess<kloC_Pressure, kloC_PipePressureState> {
  CLS_PERSISTENT(kloC, kloC_PipePressure)

 public:
  /// On which side of the pipe's wall the pressure acts. Stored by name.
  enum class SideEnm { INTERNAL = 0, EXTERNAL = 1 };

  kloC_PipePressure() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  KPRC_NAMED_CMD(constructorCmd, "PipePressure")
  KPRC_CMD(side)
  KPRC_CMD(diameter)

  SideEnm side = SideEnm::INTERNAL;
  double diameter = 0.0;  ///< effective inner or outer one, in units of length

 protected:
  /// Refuses a pipe without a diameter: 42.
  void AssertKind() const override;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_PipePressure::SideEnm>[] = {
    {"INTERNAL", 0}, {"EXTERNAL", 1}, {nullptr, 0}};
