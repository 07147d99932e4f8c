#pragma once

#include "kprC_DampingParts.h"

/// The damping at a frequency.
class TVO_API kprC_StructuralDampingByFrequencyComponent : public cls_Persistent, public kprC_DampedFrequency {
  CLS_PERSISTENT(kprC, kprC_StructuralDampingByFrequencyComponent)

 public:
  kprC_StructuralDampingByFrequencyComponent() = default;
  /// Numbers 164 and 24.
  void AssertValid() const;

  double factor = 0.0;  ///< of the elastic forces
};

/// Damping proportional to the elastic forces and in phase with the velocities, by frequency.
class TVO_API kprC_StructuralDampingByFrequency : public kprC_Damping<kprC_StructuralDampingByFrequencyComponent> {
  CLS_PERSISTENT(kprC, kprC_StructuralDampingByFrequency)

 public:
  kprC_StructuralDampingByFrequency() = default;
};
