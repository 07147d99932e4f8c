#pragma once

#include "kprC_Step.h"

/// How the steps that work through ranges of frequencies space the points of a range.
class TVO_API kprC_FrequencyScale {
 public:
  enum ScaleEnm { LOGARITHMIC = 0, LINEAR = 1 };

  KPRC_CMD(scale)

  ScaleEnm scale = LOGARITHMIC;

 protected:
  ~kprC_FrequencyScale() = default;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FrequencyScale::ScaleEnm>[] = {
    {"LOGARITHMIC", 0}, {"LINEAR", 1}, {nullptr, 0}};
