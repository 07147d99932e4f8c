#pragma once

#include "kprC_FrequencyPoints.h"

/// A range of frequencies of a subspace-based steady-state step, split at the eigenfrequencies.
class TVO_API kprC_SteadyStateSubspaceFrequency : public cls_Persistent, public kprC_FrequencyPoints {
  CLS_PERSISTENT(kprC, kprC_SteadyStateSubspaceFrequency)

 public:
  kprC_SteadyStateSubspaceFrequency() : kprC_FrequencyPoints(betweenModes) {}
  /// Numbers 46, 43 and 44.
  void AssertValid() const { AssertSplitRange(); }
};
