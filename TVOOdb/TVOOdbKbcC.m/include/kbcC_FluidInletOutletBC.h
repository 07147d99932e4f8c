#pragma once

#include "kbcC_FluidBC.h"

/// What is prescribed of a flow through a surface in one step.
class TVO_API kbcC_FluidInletOutletBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_FluidInletOutletBCState)

 public:
  kbcC_FluidInletOutletBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "FluidInletOutletBCState")

  mdl_PropAttr<double> dissipationRate; ///< of the turbulence
  mdl_PropAttr<double> eddyViscosity;   ///< of the turbulence
  mdl_PropAttr<double> kineticEnergy;   ///< of the turbulence
  mdl_PropAttr<double> pressure;        ///< in units of stress
  mdl_PropAttr<double> temperature;
  mdl_PropAttr<double> vx;              ///< velocity, in units of length per unit of time
  mdl_PropAttr<double> vy;
  mdl_PropAttr<double> vz;
  /// Names of their amplitudes.
  mdl_PropAttr<cow_String> dissipationRateAmp, eddyViscosityAmp, kineticEnergyAmp, pressureAmp;
  mdl_PropAttr<cow_String> temperatureAmp, vxAmp, vyAmp, vzAmp;
  mdl_PropAttr<kbcC_FluidMomentumTypeEnm> momentumType;
  mdl_PropAttr<kbcC_EnergyEquationTypeEnm> energyEquationType;
  mdl_PropAttr<kbcC_TurbulenceTypeEnm> turbulenceType;
};

/// What flows in or out through a surface of a fluid model.
class TVO_API kbcC_FluidInletOutletBC final : public kbcC_StateAccess<kbcC_FluidBC, kbcC_FluidInletOutletBCState> {
  CLS_PERSISTENT(kbcC, kbcC_FluidInletOutletBC)

 public:
  using momentumTypeEnm = kbcC_FluidMomentumTypeEnm;

  kbcC_FluidInletOutletBC() = default;

  KPRC_NAMED_CMD(constructorCmd, "FluidInletOutletBC")

 protected:
  Texts RefusalTexts() const override;
};
