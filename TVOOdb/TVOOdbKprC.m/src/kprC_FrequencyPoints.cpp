#include "kprC_FrequencyPoints.h"

#include "kprC_assert.h"

void kprC_FrequencyInterval::AssertPointsBetweenModes(int points, int code) { kprC_Assert(points > 1, code); }

void kprC_FrequencyInterval::AssertRangeOrSingleFrequency() const {
  kprC_Assert(lower >= 0.0 && (upper >= lower || upper == 0.0), 43);
}

void kprC_FrequencyInterval::AssertBias() const { kprC_Assert(bias != 0.0, 44); }

void kprC_FrequencyPoints::AssertSplitRange() const {
  AssertPointsBetweenModes(nPoints, 46);
  AssertRangeOrSingleFrequency();
  AssertBias();
}
