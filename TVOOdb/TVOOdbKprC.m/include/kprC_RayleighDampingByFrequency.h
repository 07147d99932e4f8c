#pragma once

#include "kprC_DampingParts.h"

/// The damping at a frequency.
class TVO_API kprC_RayleighDampingByFrequencyComponent : public cls_Persistent, public kprC_DampedFrequency {
  CLS_PERSISTENT(kprC, kprC_RayleighDampingByFrequencyComponent)

 public:
  kprC_RayleighDampingByFrequencyComponent() = default;
  /// Numbers 164 and 22.
  void AssertValid() const;

  double alpha = 0.0;  ///< mass proportional
  double beta = 0.0;   ///< stiffness proportional, in the model's unit of time
};

/// Damping proportional to mass and stiffness, by frequency.
class TVO_API kprC_RayleighDampingByFrequency : public kprC_Damping<kprC_RayleighDampingByFrequencyComponent> {
  CLS_PERSISTENT(kprC, kprC_RayleighDampingByFrequency)

 public:
  kprC_RayleighDampingByFrequency() = default;
};
