#pragma once

#include "kprC_DiagnosticPrint.h"

/// Diagnostics of a flow step: its solvers name their own in the step.
class TVO_API kprC_FlowDiagnosticPrint : public kprC_DiagnosticPrint {
  CLS_PERSISTENT(kprC, kprC_FlowDiagnosticPrint)

 public:
  kprC_FlowDiagnosticPrint() = default;
};
