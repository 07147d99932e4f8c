#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// The modes of a range of numbers: all of them, or one in each `increment`.
///
/// A new range is not valid: modes are counted from 1.
class TVO_API kprC_ModeRange : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_ModeRange)

 public:
  kprC_ModeRange() = default;
  /// Numbers 305, 306, 304 and 307.
  void AssertValid() const;

  int start = 0;      ///< first mode, from 1
  int end = 0;        ///< last mode, not below start
  int increment = 1;  ///< from one mode to the next, from 1; usually all modes of the range
};
