#pragma once

#include "kprC_FrequencyPoints.h"

/// A range of frequencies of a direct steady-state step.
class TVO_API kprC_SteadyStateDirectFrequency : public cls_Persistent, public kprC_FrequencyPoints {
  CLS_PERSISTENT(kprC, kprC_SteadyStateDirectFrequency)

 public:
  kprC_SteadyStateDirectFrequency() : kprC_FrequencyPoints(evenly) {}
  /// Numbers 42, 43 and 44.
  void AssertValid() const;
};
