#pragma once

#include "kprC_DampingParts.h"

/// The damping of a range of modes.
class TVO_API kprC_DirectDampingComponent : public cls_Persistent, public kprC_DampedModes {
  CLS_PERSISTENT(kprC, kprC_DirectDampingComponent)

 public:
  kprC_DirectDampingComponent() = default;
  /// Numbers 18, 19, 20 and 21.
  void AssertValid() const;

  double fraction = 0.0;  ///< of critical damping
};

/// Damping as a fraction of the critical one, by ranges of modes.
class TVO_API kprC_DirectDamping : public kprC_Damping<kprC_DirectDampingComponent> {
  CLS_PERSISTENT(kprC, kprC_DirectDamping)

 public:
  kprC_DirectDamping() = default;
};
