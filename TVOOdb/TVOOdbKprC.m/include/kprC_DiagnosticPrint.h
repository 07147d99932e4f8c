#pragma once

#include "cls_Persistent.h"
#include "kprC_Types.h"

/// What the solver reports about its progress. The kinds of solvers derive their own lists from it.
class TVO_API kprC_DiagnosticPrint : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_DiagnosticPrint)

 public:
  kprC_DiagnosticPrint() = default;
  virtual void AssertValid() const {}
};
