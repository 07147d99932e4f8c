#pragma once

#include "kprC_Controls.h"

/// Stands in a step whose procedure has no controls of the nonlinear solution.
class TVO_API kprC_InactiveControls : public kprC_Controls {
  CLS_PERSISTENT(kprC, kprC_InactiveControls)

 public:
  kprC_InactiveControls() = default;
};
