#pragma once

#include "kbcC_FluidBC.h"

/// What is prescribed of a flow through a surface in one step.
class TVO_API kbcC_FluidInletOutletBCState final : public kbcC_FluidBCState {
  CLS_PERSISTENT(kbcC, kbcC_FluidInletOutletBCState)

 public:
  kbcC_FluidInletOutletBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "FluidInletOutletBCState")

  KBCC_VALUE_WITH_AMPLITUDE(pressure)  ///< in units of stress
  mdl_PropAttr<kbcC_FluidMomentumTypeEnm> momentumType;
  mdl_PropAttr<kbcC_EnergyEquationTypeEnm> energyEquationType;
  KPRC_VALUE_CMD(momentumType)
  KPRC_VALUE_CMD(energyEquationType)
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
