#pragma once

#include "kloC_Values.h"

/// The fluid's pressure in one step, where it starts and what decides how far it has come.
class TVO_API kloC_FluidPressurePenetrationState final : public kloC_LoadState {
  CLS_PERSISTENT(kloC, kloC_FluidPressurePenetrationState)

 public:
  kloC_FluidPressurePenetrationState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "FluidPressurePenetrationState")

  KLOC_MAGNITUDE(kloC_FluidPressurePenetrationState)
  mdl_PropAttr<cls_xoList<rgnC_Region>> wettedRegion;  ///< what the fluid reaches from the start
  mdl_PropAttr<kloC_EvolutionRegionEnum> evolutionRegionMethod;
  mdl_PropAttr<double> criticalPress;  ///< contact pressure below which the fluid advances
  mdl_PropAttr<double> timePeriod;     ///< over which the pressure comes up where the fluid has come
};

/// The pressure of a fluid that creeps between two surfaces as they open.
class TVO_API kloC_FluidPressurePenetration final : public kloC_ValueLoad<kloC_FluidPressurePenetrationState> {
  CLS_PERSISTENT(kloC, kloC_FluidPressurePenetration)

 public:
  kloC_FluidPressurePenetration() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  using kloC_EvolutionRegionEnum = ::kloC_EvolutionRegionEnum;

  std::optional<kloC_DistributionEnm> Distribution() const override { return distType; }

  KPRC_NAMED_CMD(constructorCmd, "FluidPressurePenetration")
  KLOC_MAGNITUDE_ACCESS()
  KPRC_VALUE_CMD(wettedRegion)
  KPRC_VALUE_CMD(evolutionRegionMethod)
  KPRC_VALUE_CMD(criticalPress)
  KPRC_VALUE_CMD(timePeriod)

  kloC_DistributionEnm distType = kloC_DistributionEnm::UNIFORM;
};
