#pragma once

#include "kprC_Monitor.h"

/// Reports of a degree of freedom while an implicit step runs.
class TVO_API kprC_StandardMonitor : public kprC_Monitor {
  CLS_PERSISTENT(kprC, kprC_StandardMonitor)

 public:
  kprC_StandardMonitor() = default;
  /// Number 121, after those of the base.
  void AssertValid() const override;

  int frequency = 1;  ///< increments between two reports; 0: none
};
