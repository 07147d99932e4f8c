#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// The modes whose frequencies, in cycles per unit of time, lie in a range.
///
/// A new range is not valid: it is empty.
class TVO_API kprC_FrequencyRange : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_FrequencyRange)

 public:
  kprC_FrequencyRange() = default;
  /// Numbers 312 and 303.
  void AssertValid() const;

  double upper = 0.0;  ///< above lower
  double lower = 0.0;  ///< from 0
};
