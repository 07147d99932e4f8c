#pragma once

#include "kprC_DampingParts.h"

/// The damping at a frequency.
class TVO_API kprC_DirectDampingByFrequencyComponent : public cls_Persistent, public kprC_DampedFrequency {
  CLS_PERSISTENT(kprC, kprC_DirectDampingByFrequencyComponent)

 public:
  kprC_DirectDampingByFrequencyComponent() = default;
  /// Numbers 164 and 21.
  void AssertValid() const;

  double fraction = 0.0;  ///< of critical damping
};

/// Damping as a fraction of the critical one, by frequency.
class TVO_API kprC_DirectDampingByFrequency : public kprC_Damping<kprC_DirectDampingByFrequencyComponent> {
  CLS_PERSISTENT(kprC, kprC_DirectDampingByFrequency)

 public:
  kprC_DirectDampingByFrequency() = default;
};
