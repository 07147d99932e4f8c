#pragma once

#include "kprC_TypicalControls.h"

/// Controls of the procedures with pore fluid.
class TVO_API kprC_PoreControls : public kprC_TypicalControls {
  CLS_PERSISTENT(kprC, kprC_PoreControls)

 public:
  kprC_PoreControls() = default;

  List poreFluidPressureField = DefaultField();

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
