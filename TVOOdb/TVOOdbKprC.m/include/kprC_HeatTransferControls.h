#pragma once

#include "kprC_PrimaryControls.h"

/// Controls of heat transfer.
class TVO_API kprC_HeatTransferControls : public kprC_PrimaryControls {
  CLS_PERSISTENT(kprC, kprC_HeatTransferControls)

 public:
  kprC_HeatTransferControls() = default;

  List temperatureField = DefaultField();

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
