#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// The damping of a range of modes.
class TVO_API kprC_RayleighDampingComponent : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_RayleighDampingComponent)

 public:
  kprC_RayleighDampingComponent() = default;
  /// Numbers 18, 19, 20 and 22.
  void AssertValid() const;

  int start = 0;       ///< first mode, from 1
  int end = 0;         ///< last mode, not below start
  double alpha = 0.0;  ///< mass proportional
  double beta = 0.0;   ///< stiffness proportional, in the model's unit of time
};

/// Damping proportional to mass and stiffness, by ranges of modes.
class TVO_API kprC_RayleighDamping : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_RayleighDamping)

 public:
  kprC_RayleighDamping() = default;
  /// Refuses what a component refuses.
  void AssertValid() const;

  cls_xoList<kprC_RayleighDampingComponent> components;
};
