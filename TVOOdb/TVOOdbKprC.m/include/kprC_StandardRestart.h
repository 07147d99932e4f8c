#pragma once

#include "kprC_Restart.h"

/// Restart states of an implicit step.
class TVO_API kprC_StandardRestart : public kprC_Restart {
  CLS_PERSISTENT(kprC, kprC_StandardRestart)

 public:
  kprC_StandardRestart() = default;
  /// Numbers 121, 122 and 170.
  void AssertValid() const override;
  int NumberIntervals() const override { return numberIntervals; }
  bool TimeMarks() const override { return timeMarks; }

  int frequency = 0;        ///< increments between two states; 0: not by increments
  bool timeMarks = false;   ///< states at the exact times of the intervals
  int numberIntervals = 0;  ///< states in the step at even times; 0: not by intervals
};
