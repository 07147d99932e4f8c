#pragma once

#include "cls_Persistent.h"
#include "kprC_Types.h"

/// What the solver reports about its progress. The kinds of solvers derive their own lists from it.
class TVO_API kprC_DiagnosticPrint : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_DiagnosticPrint)

 public:
  kprC_DiagnosticPrint() = default;
  /// Refuses nothing by itself; the kinds of solvers refuse numbers of their own.
  virtual void AssertValid() const {}
};
