#pragma once

#include "kprC_Types.h"
#include "rgnC_Region.h"

/// A degree of freedom at a node whose value is reported while the step runs.
class TVO_API kprC_Monitor : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_Monitor)

 public:
  kprC_Monitor() = default;
  /// Refuses a degree of freedom below 1 with number 123.
  virtual void AssertValid() const;

  int dof = 1;       ///< its number, from 1
  rgnC_Region node;  ///< a region of one node
};
