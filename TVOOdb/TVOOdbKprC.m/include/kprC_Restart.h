#pragma once

#include "cls_Persistent.h"
#include "kprC_Types.h"

/// What a step writes so that a later analysis can go on from it.
class TVO_API kprC_Restart : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_Restart)

 public:
  kprC_Restart() = default;
  virtual void AssertValid() const {}

  bool overlay = false;  ///< only the last written state is kept
};
