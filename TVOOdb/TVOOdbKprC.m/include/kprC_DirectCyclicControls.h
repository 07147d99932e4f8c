#pragma once

#include "kprC_PrimaryControls.h"

/// Controls of the direct search for a stabilized cycle.
class TVO_API kprC_DirectCyclicControls : public kprC_PrimaryControls {
  CLS_PERSISTENT(kprC, kprC_DirectCyclicControls)

 public:
  /// The solver's own numbers, and what stands at each place of `directCyclic`.
  static constexpr double defaultDirectCyclic[] = {
      1.0,    // 0: iteration at which the state is first made periodic
      0.005,  // 1: of a stabilized state: largest residual coefficient of the series to the average flux
      0.005,  // 2: largest correction of a coefficient to the largest coefficient
      0.005,  // 3: as 1, of the constant term alone
      0.005,  // 4: as 2, of the constant term alone
  };

  kprC_DirectCyclicControls() = default;
  /// As the base, then numbers 130 and 113 of `directCyclic`.
  void AssertValid() const override;

  List displacementField = DefaultField();
  List rotationField = DefaultField();
  List directCyclic = ListOf(defaultDirectCyclic);

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
