#pragma once

// The walk's code, for the one source of a family that instantiates it.

#include "kprC_Propagator.h"

template <class Family>
void kprC_Propagator<Family>::Run() {
  int creating = 0;
  while (creating < input_.Length() && input_.UncheckedConstGet(creating).state.IsNull()) {
    ++creating;
  }
  if (creating == input_.Length()) {
    ErrorHandler(PROP_NO_STATE);
  }
  if (IsPerturbationObject(input_.UncheckedConstGet(creating))) {
    PropagatePerturbationObject(creating);
  } else {
    PropagateGenAnalysisObject();
  }
}

template <class Family>
void kprC_Propagator<Family>::PropagateGenAnalysisObject() {
  bool deactivationPending = false;
  int index = 0;
  for (Quad const& quad : input_) {
    bool const suppressed = quad.IsStepSuppressed();
    std::optional<Running> const before = suppressed ? std::optional(running_) : std::nullopt;
    if (created_) {
      EnterStep(quad);
    }
    mdl_PropagationStatusEnm const entered = running_.status;
    bool const takesType = !quad.HasStep() || KindOf(quad).valid;
    bool const valid = takesType || running_.status == STATUS_NONE;
    bool const passedOn = HoldsPassedDeactivation(quad);
    bool refused = false;
    if (valid && (deactivationPending || passedOn)) {
      DeactivateForGood();
      deactivationPending = deactivationPending && suppressed;
    } else if (passedOn) {
      refused = true;
    } else if (quad.state.HasValue()) {
      Modify(quad);
    }
    mdl_PropagationStatusEnm status = RecordedStatus(running_.status);
    if (!takesType && running_.status != STATUS_NONE) {
      status = GetInvalidStatus(quad.Procedure());
      if (running_.status == STATUS_DEACTIVATED && running_.state.HasValue()) {
        refused = true;
        running_.status = entered;
        running_.state.Get().deactivate = false;
      }
    }
    // The object stays active beneath the steps that refuse its type, as the next walk will find it.
    deactivationPending = deactivationPending || (refused && !suppressed);
    Record(quad, index++, status);
    if (before && status != STATUS_CREATED) {
      running_ = *before;
    }
  }
}

/// In a perturbation step an object is deactivated from the base state, for that step alone. What stands there as
/// deactivated for good was passed on to it by a general step.
template <class Family>
bool kprC_Propagator<Family>::HoldsPassedDeactivation(Quad const& quad) {
  return created_ && quad.status == STATUS_DEACTIVATED && quad.state.HasValue() && quad.state.ConstGet().deactivate &&
         quad.HasStep() && KindOf(quad).perturbs && owner_.IsActive(running_.baseStatus);
}

/// Ends the object's activity in the step that the walk is in and in all behind it.
template <class Family>
void kprC_Propagator<Family>::DeactivateForGood() {
  if (running_.perturbed) {
    running_.baseStatus = STATUS_DEACTIVATED;
    running_.state = running_.baseState;
  }
  State& state = running_.state.Get();
  state.deactivate = true;
  state.NewUid();
  running_.status = STATUS_DEACTIVATED;
  differs_ = false;
}

template <class Family>
void kprC_Propagator<Family>::PropagatePerturbationObject(int creatingIndex) {
  mdl_PropagationStatusEnm const beforeCreation = Family::Rules().beforePerturbation;
  bool modal = false;
  for (int index = 0; index < input_.Length(); ++index) {
    Quad const& quad = input_.UncheckedConstGet(index);
    std::optional<Running> const before = quad.IsStepSuppressed() ? std::optional(running_) : std::nullopt;
    bool const modalBefore = modal;
    int const procedure = quad.Procedure();
    if (index == creatingIndex) {
      created_ = true;
      running_.perturbed = true;
      running_.state = quad.state;
      running_.status = STATUS_CREATED;
      modal = CheckFrequency(procedure);
    } else if (modal && kprC_ProcIsModal(procedure)) {
      Perturb(procedure);
    } else {
      modal = false;
      DropState();
      running_.status = created_ ? STATUS_INSTANCE_INVALID : beforeCreation;
    }
    Record(quad, index, running_.status);
    if (before && running_.status != STATUS_CREATED) {
      running_ = *before;
      modal = modalBefore;
    }
  }
}

template <class Family>
void kprC_Propagator<Family>::Record(Quad const& old, int index, mdl_PropagationStatusEnm status) {
  bool const sameState = !differs_ && cls_Codec<StateHolder>::Equal(old.state, running_.state);
  differs_ = false;
  if (sameState) {
    running_.state = old.state;
    if (old.status == status) {
      return;
    }
  }
  if (changes_.empty()) {
    changes_.reserve(static_cast<std::size_t>(input_.Length() - index));
  }
  changes_.push_back({index, status, running_.state});
}

template <class Family>
void kprC_Propagator<Family>::ApplyTo(Quads& quads) {
  if (changes_.empty()) {
    return;
  }
  int const first = changes_.front().index;
  int const last = changes_.back().index;
  bool const contiguous = last - first + 1 == static_cast<int>(changes_.size());
  if (contiguous) {
    quads.IsolateRange(first, last);
  }
  for (Change& change : changes_) {
    Quad& quad = contiguous ? quads.UncheckedGet(change.index) : quads.Get(change.index);
    quad.status = change.status;
    quad.state = std::move(change.state);
  }
  changes_.clear();
}

template <class Family>
auto kprC_Propagator<Family>::KindOf(Quad const& quad) -> StepKind const& {
  kprC_Step const* const step = quad.procedure.GetPtr();
  if (step == nullptr || step != kind_.step) {
    kind_.step = step;
    int const procedure = quad.Procedure();
    if (procedure != kind_.procedure) {
      kind_.procedure = procedure;
      kind_.perturbs = step != nullptr && (step->Perturbation() || kprC_ProcIsModal(procedure));
      kind_.valid = CheckValidStep(procedure);
    }
  }
  return kind_;
}

template <class Family>
void kprC_Propagator<Family>::EnterStep(Quad const& quad) {
  if (quad.HasStep() && KindOf(quad).perturbs) {
    Perturb(quad.Procedure());
  } else {
    Propagate(quad);
  }
}

template <class Family>
void kprC_Propagator<Family>::SaveBase() {
  running_.baseState = running_.state;
  running_.baseStatus = running_.status;
}

template <class Family>
void kprC_Propagator<Family>::RestoreBase() {
  running_.state = std::move(running_.baseState);
  running_.baseState = nullptr;
  running_.status = running_.baseStatus;
  running_.baseStatus = STATUS_NONE;
  running_.perturbed = false;
}

template <class Family>
void kprC_Propagator<Family>::Propagate(Quad const& next) {
  if (running_.perturbed) {
    RestoreBase();
  }
  bool const computed = owner_.IsValueComputed(running_.status);
  if (owner_.IsActive(running_.status) || computed) {
    bool const settled = next.state.HasValue() && running_.state.HasValue() && !next.state.ConstGet().deactivate &&
                         next.state.ConstGet().IsPropagationOf(running_.state.ConstGet());
    differs_ = !settled && next.state.HasValue();
    if (settled) {
      running_.state = next.state;
    } else if (running_.state.HasValue()) {
      State& state = running_.state.Get();
      state.Propagate();
      // What deactivates ends the object's activity by its status; the flag is that step's own.
      state.deactivate = false;
      state.NewUid();
    }
    running_.status = computed ? STATUS_COMPUTED_PROPAGATED : STATUS_PROPAGATED;
  } else if (running_.status == STATUS_DEACTIVATED || running_.status == STATUS_COMPUTED_DEACTIVATED) {
    DropState();
    running_.status = STATUS_INACTIVE;
  }
}

/// What was active in the general steps is built into the state on which a perturbation works.
template <class Family>
void kprC_Propagator<Family>::Perturb(int) {
  if (!running_.perturbed) {
    SaveBase();
  }
  DropState();
  running_.status = running_.baseStatus == STATUS_DEACTIVATED    ? STATUS_INACTIVE
                    : owner_.IsActive(running_.baseStatus) ? STATUS_BUILT_IN
                                                           : running_.baseStatus;
  running_.perturbed = true;
}

template <class Family>
void kprC_Propagator<Family>::Modify(Quad const& quad) {
  State const& edit = quad.state.ConstGet();
  if (!owner_.IsActive(running_.status)) {
    if (created_) {
      // An edit in a step where the object is not active has nothing to change.
      DropState();
      return;
    }
    running_.state = quad.state;
    running_.status = STATUS_CREATED;
    created_ = true;
    return;
  }
  if (!created_) {
    ErrorHandler(PROP_INVALID_MODIFY);
  }
  if (running_.state.IsNull()) {
    if (edit.deactivate || !running_.perturbed) {
      ErrorHandler(PROP_INVALID_MODIFY);
    }
    running_.status = STATUS_BUILT_IN;
    return;
  }
  if (edit.deactivate) {
    differs_ = false;
    Deactivate(quad.Procedure());
  } else if (edit.IsModified()) {
    differs_ = false;
    State& state = running_.state.Get();
    state.Modify(edit);
    state.NewUid();
    running_.status = running_.perturbed ? STATUS_BASE_MODIFIED : STATUS_MODIFIED;
  } else if (running_.perturbed) {
    running_.status = STATUS_BASE_PROPAGATED;
  } else {
    running_.status = owner_.IsValueComputed(running_.status) ? STATUS_COMPUTED_PROPAGATED : STATUS_PROPAGATED;
  }
}

template <class Family>
void kprC_Propagator<Family>::Deactivate(int procedure) {
  auto const status = static_cast<std::size_t>(running_.status);
  auto const& table = Family::Rules().deactivation;
  switch (status < table.size() ? table[status] : kprC_Deactivation::unknown) {
    case kprC_Deactivation::already:
      ErrorHandler(PROP_ALREADY_DEACTIVATED);
      break;
    case kprC_Deactivation::deactivate:
      running_.state.Get().deactivate = true;
      running_.status = STATUS_DEACTIVATED;
      break;
    case kprC_Deactivation::nothing:
      break;
    case kprC_Deactivation::deactivateBase:
      DeactivateBaseState(procedure);
      break;
    case kprC_Deactivation::inBaseState:
      ErrorHandler(PROP_IN_BASE_STATE);
      break;
    case kprC_Deactivation::unknown:
      ErrorHandler(PROP_UNKNOWN_STATUS);
      break;
  }
}

template <class Family>
void kprC_Propagator<Family>::DeactivateBaseState(int procedure) {
  running_.state.Get().deactivate = true;
  running_.status = STATUS_BASE_DEACTIVATED;
  if (procedure == static_cast<int>(kprC_Procedure::Frequency)) {
    running_.frequencyDeactivated = true;
  }
}

template <class Family>
void kprC_Propagator<Family>::ErrorHandler(kprC_PropErrorEnum error) const {
  auto const& numbers = Family::Rules().propagatorErrors;
  auto const flag = static_cast<std::size_t>(error);
  Family::Assert(false, flag < numbers.size() ? numbers[flag] : numbers.back());
}

template <class Family>
bool kprC_Propagator<Family>::CheckValidStep(int procedure) const {
  return owner_.ValidInStepButRelaxCheckOnInitial(procedure, true);
}

template <class Family>
mdl_PropagationStatusEnm kprC_Propagator<Family>::GetInvalidStatus(int) const {
  return STATUS_TYPE_INVALID;
}

template <class Family>
bool kprC_Propagator<Family>::CheckFrequency(int) {
  return false;
}
