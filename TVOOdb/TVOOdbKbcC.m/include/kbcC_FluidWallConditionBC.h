#pragma once

#include "kbcC_FluidBC.h"

/// What is prescribed of a flow along a wall in one step.
class TVO_API kbcC_FluidWallConditionBCState final : public kbcC_FluidBCState {
  CLS_PERSISTENT(kbcC, kbcC_FluidWallConditionBCState)

 public:
  kbcC_FluidWallConditionBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "FluidWallConditionBCState")

  KBCC_VALUE_WITH_AMPLITUDE(heatFlux)  ///< into the fluid, in units of power per area
  mdl_PropAttr<kbcC_FluidWallConditionTypeEnm> wallConditionType;
  mdl_PropAttr<kbcC_FluidThermalEnergyTypeEnm> thermalEnergyType;
  KPRC_VALUE_CMD(wallConditionType)
  KPRC_VALUE_CMD(thermalEnergyType)
};

/// A wall of a fluid model.
class TVO_API kbcC_FluidWallConditionBC final : public kbcC_StateAccess<kbcC_FluidBC, kbcC_FluidWallConditionBCState> {
  CLS_PERSISTENT(kbcC, kbcC_FluidWallConditionBC)

 public:
  using wallConditionTypeEnm = kbcC_FluidWallConditionTypeEnm;
  using thermalEnergyTypeEnm = kbcC_FluidThermalEnergyTypeEnm;

  kbcC_FluidWallConditionBC() = default;

  KPRC_NAMED_CMD(constructorCmd, "FluidWallConditionBC")

 protected:
  Texts RefusalTexts() const override;
};
