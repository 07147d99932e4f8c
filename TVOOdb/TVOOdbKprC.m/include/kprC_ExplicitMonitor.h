#pragma once

#include "kprC_Monitor.h"

/// Reports of a degree of freedom while an explicit step runs; the solver chooses when.
class TVO_API kprC_ExplicitMonitor : public kprC_Monitor {
  CLS_PERSISTENT(kprC, kprC_ExplicitMonitor)

 public:
  kprC_ExplicitMonitor() = default;
};
