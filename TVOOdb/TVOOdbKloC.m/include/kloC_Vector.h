#pragma once

#include "kloC_Values.h"

/// The components of a load in one step.
class TVO_API kloC_VectorState : public kloC_LoadState {
  CLS_ABSTRACT(kloC, kloC_VectorState)

 public:
  mdl_PropAttr<double> c1, c2, c3;
  static constexpr std::array<mdl_PropAttr<double> kloC_VectorState::*, 3> Components() {
    return {&kloC_VectorState::c1, &kloC_VectorState::c2, &kloC_VectorState::c3};
  }
};

/// A load of three components, real or complex.
class TVO_API kloC_Vector : public kloC_ComplexLoad<kloC_Vector, kloC_VectorState> {
  CLS_ABSTRACT(kloC, kloC_Vector)

 public:
  std::optional<kloC_DistributionEnm> Distribution() const override { return distribution; }

  KPRC_COMPONENT_GETTERS(C1, 0)
  KPRC_COMPONENT_GETTERS(C2, 1)
  KPRC_COMPONENT_GETTERS(C3, 2)

  omi_complex complexC1, complexC2, complexC3;
  static constexpr std::array<omi_complex kloC_Vector::*, 3> ComplexComponents() {
    return {&kloC_Vector::complexC1, &kloC_Vector::complexC2, &kloC_Vector::complexC3};
  }
  kloC_DistributionEnm distribution = kloC_DistributionEnm::UNIFORM;
};
