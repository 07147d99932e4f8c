#pragma once

#include "kprC_assert.h"

/// Refuses a negative number of increments between two outputs with number 121.
inline void kprC_AssertFrequency(int frequency) { kprC_Assert(frequency >= 0, 121); }

/// Refuses output that is asked for by increments and by intervals at once: numbers 121, 122 and 170. Zero means: not
/// so; the text of 122 is that of requests by intervals alone, which need one.
inline void kprC_AssertTiming(int frequency, int numberIntervals) {
  kprC_AssertFrequency(frequency);
  kprC_Assert(numberIntervals >= 0, 122);
  kprC_Assert(frequency == 0 || numberIntervals == 0, 170);
}
