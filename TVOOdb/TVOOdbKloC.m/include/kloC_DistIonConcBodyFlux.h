#pragma once

#include "kloC_Distributed.h"

/// Its magnitude in one step.
class TVO_API kloC_DistIonConcBodyFluxState final : public kloC_DistributedState {
  CLS_PERSISTENT(kloC, kloC_DistIonConcBodyFluxState)

 public:
  kloC_DistIonConcBodyFluxState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "DistIonConcBodyFluxState")
};

/// A flow of ions per volume of the electrolyte.
class TVO_API kloC_DistIonConcBodyFlux final
    : public kprC_StateAccess<kloC_Distributed, kloC_DistIonConcBodyFluxState> {
  CLS_PERSISTENT(kloC, kloC_DistIonConcBodyFlux)

 public:
  kloC_DistIonConcBodyFlux() = default;
  CategoryEnm Category() const override { return ELECTROCHEMICAL; }

  KPRC_NAMED_CMD(constructorCmd, "DistIonConcBodyFlux")
};
