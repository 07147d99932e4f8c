#pragma once

#include "cls_Codec.h"
#include "kprC_Types.h"

/// Controls of the iterative solution of a step's linear equations.
class TVO_API kprC_LinearCtrl : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_LinearCtrl)

 public:
  kprC_LinearCtrl() = default;
  /// Numbers 150, 151 and 313.
  void AssertValid() const;

  bool allowPropagation = false;                    ///< the previous step's controls hold on
  bool resetDefaultValues = false;                  ///< the solver's own controls hold again
  double relativeTolerance = cls_NotGiven<double>;  ///< of convergence, from 0
  int maxIterations = cls_NotGiven<int>;            ///< from 0
  int fillInLevel = 0;                              ///< of the incomplete factorization, 0 to 3
};
