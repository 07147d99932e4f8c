#pragma once

#include "kprC_PrimaryControls.h"

/// Controls of mass diffusion.
class TVO_API kprC_MassDiffusionControls : public kprC_PrimaryControls {
  CLS_PERSISTENT(kprC, kprC_MassDiffusionControls)

 public:
  kprC_MassDiffusionControls() = default;

  List concentrationField = DefaultField();

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
