#include "kprC_DampingParts.h"

#include "kprC_assert.h"

void kprC_DampedModes::AssertModes() const {
  kprC_Assert(start >= 1, 18);
  kprC_Assert(end >= 1, 19);
  kprC_Assert(end >= start, 20);
}

void kprC_DampedFrequency::AssertFrequency() const { kprC_Assert(frequency >= 0.0, 164); }
