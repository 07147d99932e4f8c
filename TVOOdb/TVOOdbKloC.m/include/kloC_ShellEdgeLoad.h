#pragma once

#include "kloC_Traction.h"

/// Its magnitude in one step, in force or moment per length.
class TVO_API kloC_ShellEdgeLoadState final : public kloC_TractionState {
  CLS_PERSISTENT(kloC, kloC_ShellEdgeLoadState)

 public:
  kloC_ShellEdgeLoadState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ShellEdgeLoadState")
};

/// A force or moment per length of a shell's edge.
class TVO_API kloC_ShellEdgeLoad final : public kprC_StateAccess<kloC_Traction, kloC_ShellEdgeLoadState> {
  CLS_PERSISTENT(kloC, kloC_ShellEdgeLoad)

 public:
  /// Where the load points, seen from edge and shell; a moment is about the edge. Stored by name.
  enum class TractionEnm { NORMAL = 0, TRANSVERSE = 1, SHEAR = 2, MOMENT = 3, GENERAL = 4 };

  kloC_ShellEdgeLoad() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  KPRC_NAMED_CMD(constructorCmd, "ShellEdgeLoad")

  TractionEnm traction = TractionEnm::NORMAL;

 protected:
  bool IsGeneral() const override { return traction == TractionEnm::GENERAL; }
  bool NeedsDirection() const override { return IsGeneral(); }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_ShellEdgeLoad::TractionEnm>[] = {
    {"NORMAL", 0}, {"TRANSVERSE", 1}, {"SHEAR", 2}, {"MOMENT", 3}, {"GENERAL", 4}, {nullptr, 0}};
