#pragma once

#include "kloC_Values.h"

/// The pressures on the two surfaces in one step.
class TVO_API kloC_PressurePenetrationState final : public kloC_LoadState {
  CLS_PERSISTENT(kloC, kloC_PressurePenetrationState)

 public:
  kloC_PressurePenetrationState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "PressurePenetrationState")

  mdl_PropAttr<double> p1, p2;
  static constexpr std::array<mdl_PropAttr<double> kloC_PressurePenetrationState::*, 2> Components() {
    return {&kloC_PressurePenetrationState::p1, &kloC_PressurePenetrationState::p2};
  }
};

/// The pressure of a fluid between the surfaces of an interaction, kept for models that hold it; no menu offers it.
class TVO_API kloC_PressurePenetration final : public kloC_ValueLoad<kloC_PressurePenetrationState> {
  CLS_PERSISTENT(kloC, kloC_PressurePenetration)

 public:
  kloC_PressurePenetration() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "PressurePenetration")
  KPRC_COMPONENT_GETTERS(P1, 0)
  KPRC_COMPONENT_GETTERS(P2, 1)
  KPRC_VALUE_CMD(p1)
  KPRC_VALUE_CMD(p2)
  KPRC_CMD(interaction)

  cow_String interaction;
};
