#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// The damping at a frequency.
class TVO_API kprC_DirectDampingByFrequencyComponent : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_DirectDampingByFrequencyComponent)

 public:
  kprC_DirectDampingByFrequencyComponent() = default;
  /// Numbers 164 and 21.
  void AssertValid() const;

  double frequency = 0.0;  ///< in cycles per unit of time, from 0
  double fraction = 0.0;   ///< of critical damping
};

/// Damping as a fraction of the critical one, by frequency.
class TVO_API kprC_DirectDampingByFrequency : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_DirectDampingByFrequency)

 public:
  kprC_DirectDampingByFrequency() = default;
  /// Refuses what a component refuses.
  void AssertValid() const;

  cls_xoList<kprC_DirectDampingByFrequencyComponent> components;
};
