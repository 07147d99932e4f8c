#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_ConcentratedConcentrationFluxState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_ConcentratedConcentrationFluxState)

 public:
  kloC_ConcentratedConcentrationFluxState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConcConcFluxState")
};

/// A mass flow of a diffusing material at points.
class TVO_API kloC_ConcentratedConcentrationFlux final
    : public kprC_StateAccess<kloC_Scalar, kloC_ConcentratedConcentrationFluxState> {
  CLS_PERSISTENT(kloC, kloC_ConcentratedConcentrationFlux)

 public:
  kloC_ConcentratedConcentrationFlux() = default;
  CategoryEnm Category() const override { return MASS_DIFFUSION; }

  KPRC_NAMED_CMD(constructorCmd, "ConcConcFlux")
};
