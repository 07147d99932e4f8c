#pragma once

#include "kprC_assert.h"

/// Refuses a range of modes that does not run upwards from 1: numbers 18, 19 and 20.
inline void kprC_AssertModes(int start, int end) {
  kprC_Assert(start >= 1, 18);
  kprC_Assert(end >= 1, 19);
  kprC_Assert(end >= start, 20);
}
