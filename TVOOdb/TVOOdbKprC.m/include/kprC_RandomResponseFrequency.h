#pragma once

#include "kprC_FrequencyPoints.h"

/// A range of frequencies of a random response step, split at the eigenfrequencies.
class TVO_API kprC_RandomResponseFrequency : public cls_Persistent, public kprC_FrequencyInterval {
  CLS_PERSISTENT(kprC, kprC_RandomResponseFrequency)

 public:
  kprC_RandomResponseFrequency() : kprC_FrequencyInterval(betweenModes) {}
  /// Numbers 35, 36 and 44.
  void AssertValid() const;

  int nCalcs = 20;  ///< points in each part, both ends among them; 20 are usual
};
