#pragma once

#include "kprC_DampingParts.h"

/// The damping of a range of modes.
class TVO_API kprC_RayleighDampingComponent : public cls_Persistent, public kprC_DampedModes {
  CLS_PERSISTENT(kprC, kprC_RayleighDampingComponent)

 public:
  kprC_RayleighDampingComponent() = default;
  /// Numbers 18, 19, 20 and 22.
  void AssertValid() const;

  double alpha = 0.0;  ///< mass proportional
  double beta = 0.0;   ///< stiffness proportional, in the model's unit of time
};

/// Damping proportional to mass and stiffness, by ranges of modes.
class TVO_API kprC_RayleighDamping : public kprC_Damping<kprC_RayleighDampingComponent> {
  CLS_PERSISTENT(kprC, kprC_RayleighDamping)

 public:
  kprC_RayleighDamping() = default;
};
