#pragma once

#include "kloC_Values.h"

/// The magnitude of a load in one step.
class TVO_API kloC_ScalarState : public kloC_LoadState {
  CLS_ABSTRACT(kloC, kloC_ScalarState)

 public:
  KLOC_MAGNITUDE(kloC_ScalarState)
};

/// A load of one magnitude, real or complex.
class TVO_API kloC_Scalar : public kloC_ComplexLoad<kloC_Scalar, kloC_ScalarState> {
  CLS_ABSTRACT(kloC, kloC_Scalar)

 public:
  std::optional<kloC_DistributionEnm> Distribution() const override { return distType; }

  KLOC_MAGNITUDE_ACCESS()
  KLOC_COMPLEX_MAGNITUDE(kloC_Scalar)
  kloC_DistributionEnm distType = kloC_DistributionEnm::UNIFORM;
};
