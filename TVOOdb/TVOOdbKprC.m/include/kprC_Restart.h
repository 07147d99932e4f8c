#pragma once

#include "cls_Persistent.h"
#include "kprC_Types.h"

class kprC_Step;

/// What a step writes so that a later analysis can go on from it.
class TVO_API kprC_Restart : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_Restart)

 public:
  kprC_Restart() = default;
  /// Refuses nothing by itself; the kinds of solvers refuse numbers of their own.
  virtual void AssertValid() const {}
  /// Refuses a request that a step cannot meet: any in the initial step with number 158, an overlay of frequency and
  /// buckling steps with 174, exact times with 175 and intervals with 176 where the procedure or fixed increments rule
  /// them out.
  void AssertAllowedIn(kprC_Step const& step) const;
  /// States at even times; 0 if they are written otherwise.
  virtual int NumberIntervals() const { return 0; }
  /// Whether the increments are cut so that they meet these times.
  virtual bool TimeMarks() const { return false; }

  bool overlay = false;  ///< only the last written state is kept
};
