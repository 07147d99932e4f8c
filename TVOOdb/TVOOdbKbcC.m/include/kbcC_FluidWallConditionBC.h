#pragma once

#include "kbcC_FluidBC.h"

/// What is prescribed of a flow along a wall in one step.
class TVO_API kbcC_FluidWallConditionBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_FluidWallConditionBCState)

 public:
  kbcC_FluidWallConditionBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "FluidWallConditionBCState")

  mdl_PropAttr<double> dissipationRate; ///< of the turbulence
  mdl_PropAttr<double> eddyViscosity;   ///< of the turbulence
  mdl_PropAttr<double> heatFlux;        ///< into the fluid, in units of power per area
  mdl_PropAttr<double> kineticEnergy;   ///< of the turbulence
  mdl_PropAttr<double> temperature;
  mdl_PropAttr<double> vx;              ///< velocity, in units of length per unit of time
  mdl_PropAttr<double> vy;
  mdl_PropAttr<double> vz;
  /// Names of their amplitudes.
  mdl_PropAttr<cow_String> dissipationRateAmp, eddyViscosityAmp, heatFluxAmp, kineticEnergyAmp;
  mdl_PropAttr<cow_String> temperatureAmp, vxAmp, vyAmp, vzAmp;
  mdl_PropAttr<kbcC_FluidWallConditionTypeEnm> wallConditionType;
  mdl_PropAttr<kbcC_FluidThermalEnergyTypeEnm> thermalEnergyType;
  mdl_PropAttr<kbcC_TurbulenceTypeEnm> turbulenceType;
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
