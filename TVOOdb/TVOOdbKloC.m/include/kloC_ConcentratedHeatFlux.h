#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step, in units of power.
class TVO_API kloC_ConcentratedHeatFluxState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_ConcentratedHeatFluxState)

 public:
  kloC_ConcentratedHeatFluxState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConcentratedHeatFluxState")
};

/// A heat flow at points, into one of the temperatures through a shell's thickness.
class TVO_API kloC_ConcentratedHeatFlux final : public kprC_StateAccess<kloC_Scalar, kloC_ConcentratedHeatFluxState> {
  CLS_PERSISTENT(kloC, kloC_ConcentratedHeatFlux)

 public:
  kloC_ConcentratedHeatFlux() = default;
  CategoryEnm Category() const override { return THERMAL; }

  KPRC_NAMED_CMD(constructorCmd, "ConcentratedHeatFlux")
  KPRC_CMD(dof)

  int dof = 11;  ///< degree of freedom of the temperature, 11 to 31

 protected:
  /// Refuses a degree of freedom that is none of a temperature: 40.
  void AssertKind() const override;
};
