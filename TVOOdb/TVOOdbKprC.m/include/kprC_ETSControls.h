#pragma once

#include "kprC_CTDControls.h"

/// Controls of coupled temperature, displacement and electric current.
class TVO_API kprC_ETSControls : public kprC_CTDControls {
  CLS_PERSISTENT(kprC, kprC_ETSControls)

 public:
  kprC_ETSControls() = default;

  List electricalPotentialField = DefaultField();

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
