#pragma once

#include "cls_Persistent.h"
#include "kprC_Types.h"

/// How a step treats contact. The kinds of solvers derive their own parameters from it.
class TVO_API kprC_ContactControls : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_ContactControls)

 public:
  kprC_ContactControls() = default;
  /// Refuses nothing by itself; the kinds of solvers refuse numbers of their own.
  virtual void AssertValid() const {}
};
