#pragma once

#include "kprC_DampingParts.h"

/// The damping of a range of modes.
class TVO_API kprC_StructuralDampingComponent : public cls_Persistent, public kprC_DampedModes {
  CLS_PERSISTENT(kprC, kprC_StructuralDampingComponent)

 public:
  kprC_StructuralDampingComponent() = default;
  /// Numbers 18, 19, 20 and 24.
  void AssertValid() const;

  double factor = 0.0;  ///< of the elastic forces
};

/// Damping proportional to the elastic forces and in phase with the velocities, by ranges of modes.
class TVO_API kprC_StructuralDamping : public kprC_Damping<kprC_StructuralDampingComponent> {
  CLS_PERSISTENT(kprC, kprC_StructuralDamping)

 public:
  kprC_StructuralDamping() = default;
};
