#pragma once

#include "kprC_Restart.h"

/// Restart states of a flow step.
class TVO_API kprC_FlowRestart : public kprC_Restart {
  CLS_PERSISTENT(kprC, kprC_FlowRestart)

 public:
  kprC_FlowRestart() = default;
  /// Numbers 121, 122 and 170.
  void AssertValid() const override;
  int NumberIntervals() const override { return numberIntervals; }

  int frequency = 0;        ///< increments between two states; 0: not by increments
  int numberIntervals = 0;  ///< states in the step at even times; 0: not by intervals
};
