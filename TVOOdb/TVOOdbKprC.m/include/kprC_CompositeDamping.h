#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// The damping of a range of modes.
class TVO_API kprC_CompositeDampingComponent : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_CompositeDampingComponent)

 public:
  kprC_CompositeDampingComponent() = default;
  /// Numbers 18, 19 and 20.
  void AssertValid() const;

  int start = 0;  ///< first mode, from 1
  int end = 0;    ///< last mode, not below start
};

/// Damping from the materials' composite fractions, by ranges of modes.
class TVO_API kprC_CompositeDamping : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_CompositeDamping)

 public:
  kprC_CompositeDamping() = default;
  /// Refuses what a component refuses.
  void AssertValid() const;

  cls_xoList<kprC_CompositeDampingComponent> components;
};
