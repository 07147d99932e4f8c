#pragma once

#include "kprC_DiagnosticPrint.h"

/// Diagnostics of an explicit step.
class TVO_API kprC_ExplicitDiagnosticPrint : public kprC_DiagnosticPrint {
  CLS_PERSISTENT(kprC, kprC_ExplicitDiagnosticPrint)

 public:
  kprC_ExplicitDiagnosticPrint() = default;

  bool allke = true;            ///< total kinetic energy
  bool criticalElement = true;  ///< the element with the smallest stable time increment
  bool etotal = true;           ///< total energy balance
  bool dmass = true;            ///< change of the total mass by mass scaling, in percent
};
