#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// The damping of a range of modes.
class TVO_API kprC_DirectDampingComponent : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_DirectDampingComponent)

 public:
  kprC_DirectDampingComponent() = default;
  /// Numbers 18, 19, 20 and 21.
  void AssertValid() const;

  int start = 0;          ///< first mode, from 1
  int end = 0;            ///< last mode, not below start
  double fraction = 0.0;  ///< of critical damping
};

/// Damping as a fraction of the critical one, by ranges of modes.
class TVO_API kprC_DirectDamping : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_DirectDamping)

 public:
  kprC_DirectDamping() = default;
  /// Refuses what a component refuses.
  void AssertValid() const;

  cls_xoList<kprC_DirectDampingComponent> components;
};
