#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// The damping at a frequency.
class TVO_API kprC_RayleighDampingByFrequencyComponent : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_RayleighDampingByFrequencyComponent)

 public:
  kprC_RayleighDampingByFrequencyComponent() = default;
  /// Numbers 164 and 22.
  void AssertValid() const;

  double frequency = 0.0;  ///< in cycles per unit of time, from 0
  double alpha = 0.0;      ///< mass proportional
  double beta = 0.0;       ///< stiffness proportional, in the model's unit of time
};

/// Damping proportional to mass and stiffness, by frequency.
class TVO_API kprC_RayleighDampingByFrequency : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_RayleighDampingByFrequency)

 public:
  kprC_RayleighDampingByFrequency() = default;
  /// Refuses what a component refuses.
  void AssertValid() const;

  cls_xoList<kprC_RayleighDampingByFrequencyComponent> components;
};
