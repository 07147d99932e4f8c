#pragma once

#include "kprC_FrequencyPoints.h"

/// A range of frequencies of a time harmonic electromagnetic step.
class TVO_API kprC_EmagTimeHarmonicFrequency : public cls_Persistent, public kprC_FrequencyPoints {
  CLS_PERSISTENT(kprC, kprC_EmagTimeHarmonicFrequency)

 public:
  kprC_EmagTimeHarmonicFrequency() : kprC_FrequencyPoints(evenly) {}
  /// Numbers 310, 312, 311 and 44.
  void AssertValid() const;
};
