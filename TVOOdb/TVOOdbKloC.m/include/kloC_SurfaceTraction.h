#pragma once

#include "kloC_Traction.h"

/// Its magnitude in one step, in force per area.
class TVO_API kloC_SurfaceTractionState final : public kloC_TractionState {
  CLS_PERSISTENT(kloC, kloC_SurfaceTractionState)

 public:
  kloC_SurfaceTractionState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SurfaceTractionState")
};

/// A force per area of a surface, along it or in any direction.
class TVO_API kloC_SurfaceTraction final : public kprC_StateAccess<kloC_Traction, kloC_SurfaceTractionState> {
  CLS_PERSISTENT(kloC, kloC_SurfaceTraction)

 public:
  /// Whether the load is along the surface or points anywhere. Stored by name.
  enum class TractionEnm { SHEAR = 0, GENERAL = 1 };

  kloC_SurfaceTraction() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  KPRC_NAMED_CMD(constructorCmd, "SurfaceTraction")

  TractionEnm traction = TractionEnm::SHEAR;

 protected:
  bool IsGeneral() const override { return traction == TractionEnm::GENERAL; }
  bool NeedsDirection() const override { return true; }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_SurfaceTraction::TractionEnm>[] = {
    {"SHEAR", 0}, {"GENERAL", 1}, {nullptr, 0}};
