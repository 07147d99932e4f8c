#pragma once

#include "kloC_Distributed.h"

/// Its magnitude in one step.
class TVO_API kloC_BodyConcentrationFluxState final : public kloC_DistributedState {
  CLS_PERSISTENT(kloC, kloC_BodyConcentrationFluxState)

 public:
  kloC_BodyConcentrationFluxState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "BodyConcentrationFluxState")
};

/// A flow of diffusing material per volume.
class TVO_API kloC_BodyConcentrationFlux final
    : public kprC_StateAccess<kloC_Distributed, kloC_BodyConcentrationFluxState> {
  CLS_PERSISTENT(kloC, kloC_BodyConcentrationFlux)

 public:
  kloC_BodyConcentrationFlux() = default;
  CategoryEnm Category() const override { return MASS_DIFFUSION; }

  KPRC_NAMED_CMD(constructorCmd, "BodyConcentrationFlux")
};
