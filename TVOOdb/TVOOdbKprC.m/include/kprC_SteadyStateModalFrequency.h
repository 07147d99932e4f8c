#pragma once

#include "kprC_FrequencyPoints.h"

/// A range of frequencies of a modal steady-state step, split at the eigenfrequencies.
class TVO_API kprC_SteadyStateModalFrequency : public cls_Persistent, public kprC_FrequencyPoints {
  CLS_PERSISTENT(kprC, kprC_SteadyStateModalFrequency)

 public:
  kprC_SteadyStateModalFrequency() : kprC_FrequencyPoints(betweenModes) {}
  /// Numbers 46, 43 and 44.
  void AssertValid() const { AssertSplitRange(); }
};
