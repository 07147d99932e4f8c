#pragma once

#include "cls_Containers.h"
#include "kprC_FrequencyScale.h"
#include "kprC_assert.h"

/// What the steps share that compute the response to a harmonic excitation, range of frequencies by range.
template <class Range>
class TVO_API kprC_FrequencySweep : public kprC_FrequencyScale {
 public:
  KPRC_CMD(frequencyRange)

  cls_xoList<Range> frequencyRange;

 protected:
  ~kprC_FrequencySweep() = default;
  /// Refuses a step without frequencies.
  void AssertFrequencies(int code) const { kprC_Assert(!frequencyRange.IsEmpty(), code); }
};
