#pragma once

#include "kprC_Restart.h"

/// Restart states of an explicit step.
class TVO_API kprC_ExplicitRestart : public kprC_Restart {
  CLS_PERSISTENT(kprC, kprC_ExplicitRestart)

 public:
  kprC_ExplicitRestart() = default;
  /// Number 122.
  void AssertValid() const override;
  int NumberIntervals() const override { return numberIntervals; }
  bool TimeMarks() const override { return timeMarks; }

  int numberIntervals = 1;  ///< states in the step at even times, from 1
  bool timeMarks = false;   ///< states at the exact times of the intervals
};
