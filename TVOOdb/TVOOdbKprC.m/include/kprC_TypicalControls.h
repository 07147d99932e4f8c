#pragma once

#include "kprC_PrimaryControls.h"

/// Controls of the stress procedures: displacements, rotations and the pressure of hydrostatic fluid elements.
class TVO_API kprC_TypicalControls : public kprC_PrimaryControls {
  CLS_PERSISTENT(kprC, kprC_TypicalControls)

 public:
  kprC_TypicalControls() = default;

  List displacementField = DefaultField();
  List hydrostaticFluidPressureField = DefaultField();
  List rotationField = DefaultField();

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
