#pragma once

#include "kloC_Values.h"

/// The magnitude of a distributed load in one step.
class TVO_API kloC_DistributedState : public kloC_LoadState {
  CLS_ABSTRACT(kloC, kloC_DistributedState)

 public:
  KLOC_MAGNITUDE(kloC_DistributedState)
};

/// A load of one magnitude over a surface or a volume.
class TVO_API kloC_Distributed : public kloC_ValueLoad<kloC_DistributedState> {
  CLS_ABSTRACT(kloC, kloC_Distributed)

 public:
  std::optional<kloC_DistributionEnm> Distribution() const override { return distType; }

  KLOC_MAGNITUDE_ACCESS()

  kloC_DistributionEnm distType = kloC_DistributionEnm::UNIFORM;
};
