#pragma once

#include "cls_Containers.h"
#include "kprC_Step.h"

/// A step of the model's list: its name and its procedure, which the list shares with the steps' owner.
class TVO_API kprC_StepNameProcedurePair : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_StepNameProcedurePair)

 public:
  kprC_StepNameProcedurePair() = default;
  kprC_StepNameProcedurePair(cow_String name, kprC_StepHolder step)
      : stepName(std::move(name)), procedure(std::move(step)) {}

  /// Whether the step takes part in the analysis: it has a procedure, and that is not suppressed.
  bool IsActive() const { return procedure.HasValue() && !procedure.ConstGet().suppress; }

  cow_String stepName;
  kprC_StepHolder procedure;  ///< may be empty
};

/// The steps of a model in analysis order; element 0 is the initial step.
using kprC_StepList = cls_xo1DArrayList<kprC_StepNameProcedurePair>;
