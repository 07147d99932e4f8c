#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"
#include "rgnC_Region.h"

/// Degrees of freedom of the nodes of a region, which a substructure keeps.
class TVO_API kprC_RetainedDofs : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_RetainedDofs)

 public:
  kprC_RetainedDofs() = default;
  /// Number 248.
  void AssertValid() const;

  rgnC_Region region;
  cls_xp1DArrayListInt dofs;  ///< numbers from 1
};
