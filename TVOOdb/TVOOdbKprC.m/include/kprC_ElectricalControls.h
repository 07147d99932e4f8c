#pragma once

#include "kprC_TypicalControls.h"

/// Controls of stress with an electrical potential, as of piezoelectric materials.
class TVO_API kprC_ElectricalControls : public kprC_TypicalControls {
  CLS_PERSISTENT(kprC, kprC_ElectricalControls)

 public:
  kprC_ElectricalControls() = default;

  List electricalPotentialField = DefaultField();

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
