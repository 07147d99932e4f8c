#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// Times of a step at which output is written; a definition of the model that output requests refer to by name.
///
/// A new object is not valid: it has no times.
class TVO_API kprC_TimePoint : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_TimePoint)

 public:
  kprC_TimePoint() = default;
  /// Numbers 167 to 169, 171 to 173 and 264. Two entries may meet in one time.
  void AssertValid() const;

  /// In ascending order: a list with a time, or one with the first and the last of many times and the time between
  /// them.
  cls_xp2DArrayDouble points;
};
