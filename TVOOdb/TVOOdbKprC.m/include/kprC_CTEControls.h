#pragma once

#include "kprC_HeatTransferControls.h"

/// Controls of coupled heat transfer and electric current.
class TVO_API kprC_CTEControls : public kprC_HeatTransferControls {
  CLS_PERSISTENT(kprC, kprC_CTEControls)

 public:
  kprC_CTEControls() = default;

  List electricalPotentialField = DefaultField();

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
