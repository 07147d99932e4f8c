#pragma once

#include "kprC_DiagnosticPrint.h"

/// Diagnostics of a perturbation step.
class TVO_API kprC_PerturbationDiagnosticPrint : public kprC_DiagnosticPrint {
  CLS_PERSISTENT(kprC, kprC_PerturbationDiagnosticPrint)

 public:
  kprC_PerturbationDiagnosticPrint() = default;
  /// Number 121.
  void AssertValid() const override;

  int frequency = 1;   ///< increments between two printings; 0: none
  bool solve = false;  ///< numbers of equations and their solution
};
