#pragma once

#include "kprC_StepNameProcedurePair.h"
#include "kprC_StepState.h"

/// One object at one step, the state quad: the step's name, how the object stands there, what it holds there (nothing
/// where the step adds nothing of its own) and the step's procedure (none for the initial step).
template <class S>
class TVO_API kprC_PropagatingState final : public cls_Persistent {
  CLS_PERSISTENT_TEMPLATE(kprC_PropagatingState)

 public:
  using StateHolder = cow_COW<S, cow_Virtual<S>>;

  kprC_PropagatingState() = default;
  explicit kprC_PropagatingState(kprC_StepNameProcedurePair const& pair)
      : stepName(pair.stepName), procedure(pair.procedure) {}

  bool HasStep() const noexcept { return procedure.HasValue(); }
  kprC_Step const& Step() const { return procedure.ConstGet(); }
  /// Type identifier of the step, 0 for the initial step.
  int Procedure() const { return HasStep() ? static_cast<int>(Step().DynTypeId()) : 0; }
  bool IsStepSuppressed() const { return HasStep() && Step().suppress; }

  bool operator==(kprC_PropagatingState const& other) const {
    return status == other.status && stepName == other.stepName &&
           cls_Codec<StateHolder>::Equal(state, other.state) &&
           cls_Codec<kprC_StepHolder>::Equal(procedure, other.procedure);
  }

  cow_String stepName;
  mdl_PropagationStatusEnm status = STATUS_NONE;
  StateHolder state;
  kprC_StepHolder procedure;
};

template <class S>
cls_AttributeTable const& kprC_PropagatingState<S>::Attributes() {
  using Self = kprC_PropagatingState<S>;
  static auto const table = cls_Describe<Self>(cls_InstanceOf<Self>::name, 831)
                                .Attribute(0, "stepName", &Self::stepName)
                                .Attribute(1, "status", &Self::status)
                                .Attribute(2, "state", &Self::state)
                                .Shared(3, "procedure", &Self::procedure);
  return table;
}
