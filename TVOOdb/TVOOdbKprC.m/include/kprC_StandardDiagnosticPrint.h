#pragma once

#include "kprC_DiagnosticPrint.h"

/// Diagnostics of an implicit step.
class TVO_API kprC_StandardDiagnosticPrint : public kprC_DiagnosticPrint {
  CLS_PERSISTENT(kprC, kprC_StandardDiagnosticPrint)

 public:
  kprC_StandardDiagnosticPrint() = default;
  /// Number 121.
  void AssertValid() const override;

  bool contact = false;       ///< openings and closings of contact
  int frequency = 1;          ///< increments between two printings; 0: none
  bool modelChange = false;   ///< what is removed and reactivated
  bool adaptiveMesh = false;  ///< sweeps of mesh adaption
  bool plasticity = false;    ///< where the integration of plasticity fails
  bool residual = true;       ///< residuals of the equilibrium iterations
  bool solve = false;         ///< numbers of equations and their solution
};
