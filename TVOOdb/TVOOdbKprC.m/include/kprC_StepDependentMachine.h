#pragma once

// The machine's code, for the one source of a family that instantiates it.

#include "atr_String.h"
#include "kprC_PropagatorWalk.h"
#include "kprC_StepDependent.h"
#include "nex_Exception.h"

template <class Family>
bool kprC_StepDependent<Family>::Answer(kprC_StatusPredicate const& predicate, mdl_PropagationStatusEnm status) {
  std::uint32_t const bit = static_cast<unsigned int>(status) < 32u ? 1u << static_cast<unsigned int>(status) : 0u;
  if ((predicate.known & bit) == 0) {
    Family::Assert(false, Family::Rules().unknownStatus);
  }
  return (predicate.yes & bit) != 0;
}

template <class Family>
int kprC_StepDependent<Family>::Find(cow_String const& step) const {
  int index = 0;
  for (Quad const& quad : states) {
    if (quad.stepName == step) {
      return index;
    }
    ++index;
  }
  return -1;
}

template <class Family>
auto kprC_StepDependent<Family>::ConstGetStateQuad(cow_String const& step) const -> Quad const& {
  int const index = Find(step);
  if (index < 0) {
    nex_CmdException<cow_String, 1>(step).Throw(__FILE__, __LINE__);
  }
  return states.UncheckedConstGet(index);
}

template <class Family>
auto kprC_StepDependent<Family>::GetStateQuad(cow_String const& step) -> Quad& {
  ConstGetStateQuad(step);
  Unsettle();
  return states.Get(Find(step));
}

template <class Family>
auto kprC_StepDependent<Family>::CreatingQuad() const -> Quad const* {
  for (Quad const& quad : states) {
    if (quad.state.HasValue()) {
      return &quad;
    }
  }
  return nullptr;
}

template <class Family>
cow_String kprC_StepDependent<Family>::CreateStepName() const {
  if (Quad const* const creating = CreatingQuad()) {
    return creating->stepName;
  }
  nex_PrimException<cow_String, 3>(cow_String("\"All states are empty\" == 0")).Throw(__FILE__, __LINE__);
}

template <class Family>
bool kprC_StepDependent<Family>::HasStep(cow_String const& step) const {
  if (suppressionState != RESUMED) {
    return false;
  }
  Quad const& quad = ConstGetStateQuad(step);
  return IsActive(quad.status) && quad.state.HasValue();
}

template <class Family>
void kprC_StepDependent<Family>::CheckStep(cow_String const& step) const {
  if (!HasStep(step)) {
    Family::RefuseStep(Status(step), step);
  }
}

template <class Family>
cow_List<mdl_PropagationStatusEnm> kprC_StepDependent<Family>::History() const {
  cow_List<mdl_PropagationStatusEnm> history(states.Length());
  for (Quad const& quad : states) {
    history.Append(quad.status);
  }
  return history;
}

template <class Family>
cow_List<cow_String> kprC_StepDependent<Family>::StepNames() const {
  cow_List<cow_String> names(states.Length());
  for (Quad const& quad : states) {
    names.Append(quad.stepName);
  }
  return names;
}

template <class Family>
bool kprC_StepDependent<Family>::IsEditable(cow_String const& step) const {
  int const index = Find(step);
  return index >= 0 && (Family::Rules().editable >> states.UncheckedConstGet(index).status & 1u) != 0;
}

template <class Family>
cow_String kprC_StepDependent<Family>::GetEditableStepName(cow_String const& step) const {
  return IsEditable(step) ? step : CreateStepName();
}

template <class Family>
cow_List<cow_String> kprC_StepDependent<Family>::Amplitudes() const {
  cow_List<cow_String> names;
  if constexpr (std::derived_from<State, kprC_AmplitudeState>) {
    for (Quad const& quad : states) {
      if (quad.state.HasValue()) {
        names.Append(quad.state.ConstGet().amplitude.ConstGet());
      }
    }
  }
  return names;
}

// ---- tests before edits

template <class Family>
bool kprC_StepDependent<Family>::Holds(kprC_StepCheck const& check, Quad const* source, Quad const* destination) const {
  auto const isOf = [&](Quad const& quad) { return quad.HasStep() && quad.Step().DynTypeId() == check.procedure; };
  switch (check.test) {
    case kprC_StepTest::stepIsMember:
      return source != nullptr;
    case kprC_StepTest::sourceHoldsValues:
      return source->state.HasValue() && !source->state.ConstGet().deactivate;
    case kprC_StepTest::objectResumed:
      return suppressionState == RESUMED;
    case kprC_StepTest::sourceNotCreateStep:
      return source == nullptr || source->stepName != CreateStepName();
    case kprC_StepTest::sourceResettable:
      return (kprC_Statuses({0, 3, 5, 6, 7, 10, 13}) >> source->status & 1u) == 0;
    case kprC_StepTest::sourceActive:
      return IsActive(source->status);
    case kprC_StepTest::sourceNotPropagated:
      return !IsPropagated(source->status);
    case kprC_StepTest::sourceNotBuiltIn:
      return !IsBuiltIn(source->status);
    case kprC_StepTest::sourceGeneral:
      return !source->HasStep() || !source->Step().Perturbation();
    case kprC_StepTest::sourceNotOf:
      return !isOf(*source);
    case kprC_StepTest::sourceResumed:
      return !source->IsStepSuppressed();
    case kprC_StepTest::destinationGeneral:
      return !destination->HasStep() || !destination->Step().Perturbation();
    case kprC_StepTest::destinationNotOf:
      return !isOf(*destination);
    case kprC_StepTest::destinationValid:
      return !destination->HasStep() || ValidInStepButRelaxCheckOnInitial(destination->Procedure(), false);
    case kprC_StepTest::destinationResumed:
      return !destination->IsStepSuppressed();
    case kprC_StepTest::family:
      AssertMove(*source, *destination);
      return true;
  }
  return true;
}

template <class Family>
bool kprC_StepDependent<Family>::AssertChecks(std::span<kprC_StepCheck const> checks, Quad const* source,
                                              Quad const* destination) const {
  for (kprC_StepCheck const& check : checks) {
    if (!Holds(check, source, destination)) {
      if (check.error == kprC_NothingToDo) {
        return false;
      }
      Family::Assert(false, check.error);
    }
  }
  return true;
}

// ---- edits

template <class Family>
bool kprC_StepDependent<Family>::Insert(cow_String const& step, State const& state) {
  int const index = Find(step);
  if (index >= 0) {
    // The state may come from another step of this object, or go to several steps.
    typename Quad::StateHolder own(state.Copy());
    own.Get().NewUid();
    MarkEdit(index, own.Get());
    Unsettle();
    states.Get(index).state = own;
    for (Quad const& quad : states) {
      if (quad.HasStep()) {
        Sync();
        break;
      }
    }
    return true;
  }
  if (!states.IsEmpty()) {
    return false;
  }
  // A new object gets its name into a step so, before the model's steps reach it.
  Quad quad;
  quad.stepName = step;
  quad.status = STATUS_CREATED;
  quad.state = state.Copy();
  Unsettle();
  states.Append(std::move(quad));
  return true;
}

template <class Family>
void kprC_StepDependent<Family>::MarkEdit(int index, State& edit) const {
  Quad const* const creating = CreatingQuad();
  bool const behindCreation = creating != nullptr && creating < &states.UncheckedConstGet(index);
  if (edit.EditMark() == nullptr || edit.IsModified() || !behindCreation) {
    return;
  }
  Quads without = states;
  without.Resize(index + 1);
  without.Get(index).state = nullptr;
  typename Family::Propagator(Self(), without).ApplyTo(without);
  State const* const inherited = without.Last().state.GetPtr();
  if (inherited != nullptr && inherited->DynTypeId() == edit.DynTypeId()) {
    edit.MarkEditOf(*inherited);
  }
}

template <class Family>
bool kprC_StepDependent<Family>::Remove(cow_String const& step) {
  int const index = Find(step);
  if (index < 0) {
    return false;
  }
  Unsettle();
  states.Get(index).state = nullptr;
  Sync();
  return true;
}

template <class Family>
void kprC_StepDependent<Family>::Deactivate(cow_String const& step) {
  int const index = Find(step);
  Quad const* const quad = index < 0 ? nullptr : &states.UncheckedConstGet(index);
  if (!AssertChecks(Family::Rules().deactivate, quad, nullptr)) {
    return;
  }
  Unsettle();
  states.Get(index).state.Get().deactivate = true;
  Sync();
}

template <class Family>
void kprC_StepDependent<Family>::Reset(cow_String const& step) {
  AssertChecks(Family::Rules().reset, &ConstGetStateQuad(step), nullptr);
  GetStateQuad(step).state = nullptr;
  Sync();
}

template <class Family>
void kprC_StepDependent<Family>::DropStatesBetween(cow_String const& from, cow_String const& to) {
  kprC_StepRules const& rules = Family::Rules();
  bool const creation = Status(from) == STATUS_CREATED;
  Quads moved = states;
  bool between = false;
  int index = -1;
  for (Quad const& quad : states) {
    ++index;
    bool const isDestination = quad.stepName == to;
    if (isDestination && rules.moveOntoEdited != kprC_NoTest) {
      Family::Assert(!IsIllegalMove(quad.status), rules.moveOntoEdited);
    }
    if (isDestination || quad.stepName == from) {
      between = !between;
    } else if (between) {
      bool const suppressed = quad.IsStepSuppressed();
      if (suppressed && !creation) {
        continue;
      }
      if (!suppressed && rules.moveAcrossEdited != kprC_NoTest) {
        Family::Assert(!IsIllegalMove(quad.status), rules.moveAcrossEdited);
      }
      moved.Get(index).state = nullptr;
    }
  }
  Unsettle();
  states = moved;
}

template <class Family>
void kprC_StepDependent<Family>::Move(cow_String const& from, cow_String const& to) {
  if (from == to) {
    return;
  }
  ConstGetStateQuad(from);
  ConstGetStateQuad(to);
  DropStatesBetween(from, to);
  AssertChecks(Family::Rules().move, &ConstGetStateQuad(from), &ConstGetStateQuad(to));
  Quad& source = GetStateQuad(from);
  typename Quad::StateHolder const state = source.state;
  mdl_PropagationStatusEnm const status = source.status;
  source.state = nullptr;
  Quad& destination = GetStateQuad(to);
  destination.status = status;
  destination.state = state;
  Sync();
}

template <class Family>
void kprC_StepDependent<Family>::CopyToStep(cow_String const& step, Object*& out) const {
  kprC_StepRules const& rules = Family::Rules();
  cow_String const createStep = CreateStepName();
  bool const elsewhere = step != createStep;
  int procedure = 0;
  if (elsewhere) {
    Family::Assert(suppressionState == RESUMED, rules.copySuppressedObject);
    if (step != kprC_Step::initialCmd()) {
      int const index = Find(step);
      Family::Assert(index >= 0 && !states.UncheckedConstGet(index).IsStepSuppressed(), rules.copyToSuppressedStep);
      procedure = states.UncheckedConstGet(index).Procedure();
    }
    Family::Assert(ValidInStep(procedure, false, false, 0), rules.copyInvalidType);
  }
  std::unique_ptr<Object> copy(static_cast<Object*>(DDB_DeepCopyPtr(this, DynTypeId())));
  if (elsewhere) {
    copy->states = Quads();
    copy->Insert(step, ConstGetStateQuad(createStep).state.ConstGet());
    copy->ChangeProcedureType(static_cast<unsigned int>(procedure));
  }
  // The copy is to live beside the original.
  copy->NewUid();
  out = copy.release();
}

template <class Family>
std::unique_ptr<kprC_StepObject> kprC_StepDependent<Family>::CopiedToStep(cow_String const& step) const {
  Object* copy = nullptr;
  CopyToStep(step, copy);
  return std::unique_ptr<kprC_StepObject>(copy);
}

template <class Family>
void kprC_StepDependent<Family>::Suppress(bool byStep, bool keep) {
  kprC_SuppressPropagatingAttribute(byStep, suppressionState, keep);
}

template <class Family>
void kprC_StepDependent<Family>::Resume(bool byStep) {
  kprC_ResumePropagatingAttribute(byStep, suppressionState);
  Sync();
}

template <class Family>
void kprC_StepDependent<Family>::ChangeProcedureType(unsigned int procedure) {
  Unsettle();
  for (int i = 0; i < states.Length(); ++i) {
    if (states.UncheckedConstGet(i).state.HasValue()) {
      states.Get(i).state.Get().ChangeProcedureType(procedure);
    }
  }
}

template <class Family>
void kprC_StepDependent<Family>::UpdateStates() {
  Quad const& quad = ConstGetStateQuad(CreateStepName());
  if (quad.HasStep()) {
    Family::Assert(ValidInStepButRelaxCheckOnInitial(quad.Procedure(), false), Family::Rules().updateInvalidType);
  }
  Sync();
}

// ---- steps around the object

template <class Family>
bool kprC_StepDependent<Family>::StandsOver(StepList const& steps) const {
  if (steps.Length() != states.Length()) {
    return false;
  }
  auto step = steps.begin();
  for (Quad const& quad : states) {
    if (quad.stepName != step->stepName || !quad.procedure.Identical(step->procedure)) {
      return false;
    }
    ++step;
  }
  return true;
}

template <class Family>
void kprC_StepDependent<Family>::LayOut(StepList const& steps) {
  Unsettle();
  if (StandsOver(steps)) {
    return;
  }
  Quads const old = states;
  Quads fresh(steps.Length());
  int next = 0;  // the step lists mostly run in step with each other
  for (kprC_StepNameProcedurePair const& step : steps) {
    bool const inStep = next < old.Length() && old.UncheckedConstGet(next).stepName == step.stepName;
    int const found = inStep ? next : Find(step.stepName);
    Quad quad(step);
    if (found >= 0) {
      quad.state = old.UncheckedConstGet(found).state;
      quad.status = old.UncheckedConstGet(found).status;
      next = found + 1;
    }
    fresh.Append(std::move(quad));
  }
  states = fresh;
}

template <class Family>
void kprC_StepDependent<Family>::Initialize(StepList const& steps) {
  LayOut(steps);
  Sync();
}

template <class Family>
void kprC_StepDependent<Family>::ForcedInitialize(StepList const& steps) {
  LayOut(steps);
  Walk();
}

template <class Family>
void kprC_StepDependent<Family>::InsertStep(int index, kprC_StepNameProcedurePair const& step) {
  Unsettle();
  states.InsertIndex(index, Quad(step));
  Sync();
}

template <class Family>
void kprC_StepDependent<Family>::RemoveStep(cow_String const& step) {
  int const index = Find(step);
  if (index >= 0) {
    Unsettle();
    states.RemoveIndex(index);
  }
  Sync();
}

template <class Family>
void kprC_StepDependent<Family>::RenameStep(cow_String const& oldName, cow_String const& newName) {
  int const index = Find(oldName);
  if (index >= 0) {
    // Nothing is derived from a step's name, so what was derived stays.
    states.Get(index).stepName = newName;
  }
}

template <class Family>
void kprC_StepDependent<Family>::ReplaceStep(cow_String const& step) {
  Family::Assert(step != CreateStepName(), Family::Rules().replaceCreateStep);
  // The caller follows with InsertStep or Initialize, which derive all steps anew.
  Quad& quad = GetStateQuad(step);
  quad.state = nullptr;
  quad.procedure = nullptr;
  quad.status = STATUS_NONE;
}

// ---- derivation and validation

template <class Family>
void kprC_StepDependent<Family>::Walk() {
  typename Family::Propagator propagator(Self(), states);
  if (propagator.Changed()) {
    propagator.ApplyTo(states);
    states.NewUid();
  }
  settled_ = true;
}

template <class Family>
void kprC_StepDependent<Family>::Sync() {
  Walk();
  AssertValid();
}

template <class Family>
void kprC_StepDependent<Family>::AssertValid() const {
  if (suppressionState != RESUMED) {
    return;
  }
  AssertDefinition();
  if (!settled_) {
    typename Family::Propagator const propagator(Self(), states);
  }
  Quad const* creating = nullptr;
  for (Quad const& quad : states) {
    if (quad.state.HasValue()) {
      if (creating == nullptr) {
        creating = &quad;
      }
      if (!quad.IsStepSuppressed()) {
        quad.state.ConstGet().AssertValid();
      }
    }
  }
  if (creating != nullptr && creating->HasStep()) {
    AssertCreateStep(creating->Procedure());
  }
}

template <class Family>
bool kprC_StepDependent<Family>::ValidInALoadCase(cow_String const& step, bool report) const {
  auto const holds = [&](bool condition, int refusal) {
    if (report) {
      Family::Assert(condition, Family::Rules().loadCase[static_cast<std::size_t>(refusal)]);
    }
    return condition;
  };
  if (!holds(HasStep(step), 0) || !holds(AllowedInALoadCase(), 1) || !holds(!NYIForLoadCase(), 2)) {
    return false;
  }
  unsigned int const procedure = static_cast<unsigned int>(ConstGetStateQuad(step).Procedure());
  bool const modal = procedure == kprC_Procedure::ModalDynamics || procedure == kprC_Procedure::SteadyStateModal;
  return Family::Rules().loadCase[3] == kprC_NoTest || holds(!modal, 3);
}
