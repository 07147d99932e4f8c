#pragma once

#include "kprC_DampingParts.h"

/// The damping of a range of modes.
class TVO_API kprC_CompositeDampingComponent : public cls_Persistent, public kprC_DampedModes {
  CLS_PERSISTENT(kprC, kprC_CompositeDampingComponent)

 public:
  kprC_CompositeDampingComponent() = default;
  /// Numbers 18, 19 and 20.
  void AssertValid() const;
};

/// Damping from the materials' composite fractions, by ranges of modes.
class TVO_API kprC_CompositeDamping : public kprC_Damping<kprC_CompositeDampingComponent> {
  CLS_PERSISTENT(kprC, kprC_CompositeDamping)

 public:
  kprC_CompositeDamping() = default;
};
