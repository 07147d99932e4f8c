#pragma once

#include "kprC_TypicalControls.h"

/// Controls of coupled temperature and displacement.
class TVO_API kprC_CTDControls : public kprC_TypicalControls {
  CLS_PERSISTENT(kprC, kprC_CTDControls)

 public:
  kprC_CTDControls() = default;

  List temperatureField = DefaultField();

 protected:
  std::vector<FieldGroup> FieldGroups() const override;
};
