#pragma once

#include "kprC_PropagatingState.h"
#include "kprC_StepObject.h"
#include "kprC_StepRules.h"

/// Whether a procedure works on the modes of a frequency extraction, whose base state holds what is prescribed.
TVO_API bool kprC_ProcIsModal(int procedure) noexcept;

/// The machine of all step-dependent families: the list of state quads and all that is done to it.
///
/// `Family` tells what differs: `Object`, `State` and `Propagator` (its classes), `Rules()` (kprC_StepRules: numbers, sets
/// and tables), `Assert(condition, number)`, `RefuseStep(status, step)`, and for the repository `RepositoryName()` and
/// `OfferedTypes(procedure)`. Where a family differs in more than that, it overrides an operation.
template <class Family>
class TVO_API kprC_StepDependent : public kprC_StepObject {
 public:
  using FamilyRules = Family;
  using Object = typename Family::Object;
  using State = typename Family::State;
  using Quad = kprC_PropagatingState<State>;
  using Quads = cls_xoList<Quad>;

  kprC_StepDependent* Copy() const override = 0;

  // ---- queries
  void AssertValid() const override;
  cow_String CreateStepName() const override;
  bool IsMember(cow_String const& step) const override { return Find(step) >= 0; }
  bool HasStep(cow_String const& step) const override;
  void CheckStep(cow_String const& step) const override;
  mdl_PropagationStatusEnm Status(cow_String const& step) const override { return ConstGetStateQuad(step).status; }
  cow_List<mdl_PropagationStatusEnm> History() const override;
  bool IsEditable(cow_String const& step) const override;
  /// `step` if the object can be edited there, else the step that created it.
  virtual cow_String GetEditableStepName(cow_String const& step) const;
  State const* StateIn(cow_String const& step) const override { return ConstGetStateQuad(step).state.GetPtr(); }
  cow_List<cow_String> StepNames() const override;
  /// The quad of a step; an unknown step is refused with nex_CmdException<cow_String, 1>, whose text is the name.
  Quad const& ConstGetStateQuad(cow_String const& step) const;
  Quad& GetStateQuad(cow_String const& step);
  Quads const& States() const noexcept { return states; }
  /// The value in force in a step; refused as CheckStep refuses. Concrete classes give it as their own class of state.
  virtual State const& ConstGetState(cow_String const& step) const {
    CheckStep(step);
    return ConstGetStateQuad(step).state.ConstGet();
  }
  cow_List<cow_String> Amplitudes() const override;

  bool ValidInStep(int procedure, bool flag, bool relax, int firstProcedure) const override = 0;
  bool ValidInStep(kprC_Step const& step, bool flag, bool relax, int firstProcedure) const override {
    return ValidInStep(static_cast<int>(step.DynTypeId()), flag, relax, firstProcedure);
  }
  virtual bool ValidInStepButRelaxCheckOnInitial(int procedure, bool flag) const {
    return ValidInStep(procedure, flag, procedure == 0, procedure);
  }
  virtual bool ValidInPerturbationStep(int procedure, bool flag) const = 0;
  virtual bool AllowedInALoadCase() const { return false; }
  virtual bool NYIForLoadCase() const { return false; }
  /// Whether a load case in that step may use the object; with `report` a refusal is raised.
  virtual bool ValidInALoadCase(cow_String const& step, bool report) const;

  // ---- what a status means to the family; a status outside its domain is refused
  virtual bool IsActive(mdl_PropagationStatusEnm status) const { return Answer(Family::Rules().active, status); }
  virtual bool IsPropagated(mdl_PropagationStatusEnm status) const { return Answer(Family::Rules().propagated, status); }
  virtual bool IsBuiltIn(mdl_PropagationStatusEnm status) const { return Answer(Family::Rules().builtIn, status); }
  static bool IsModified(mdl_PropagationStatusEnm status) { return Answer(Family::Rules().modified, status); }
  static bool IsIllegalMove(mdl_PropagationStatusEnm status) { return Answer(Family::Rules().illegalMove, status); }
  static bool ProcIsModal(int const& procedure) noexcept { return kprC_ProcIsModal(procedure); }
  static bool IsValueComputed(mdl_PropagationStatusEnm status) { return Answer(Family::Rules().computed, status); }

  // ---- edits
  /// Stores what the user said for a step. An object without steps takes its first step so; otherwise an unknown step
  /// answers false and nothing changes.
  virtual bool Insert(cow_String const& step, State const& state);
  bool InsertState(cow_String const& step, kprC_StepState const& state) override {
    return Insert(step, kprC_CheckedCast<State>(state, __FILE__, __LINE__));
  }
  /// Drops what was said for a step; whether the step is known.
  virtual bool Remove(cow_String const& step);
  void Deactivate(cow_String const& step) override;
  void Reset(cow_String const& step) override;
  /// Shifts a creation or an edit to another step. The states between are dropped before the tests of the two steps run;
  /// callers rely on that order.
  void Move(cow_String const& from, cow_String const& to) override;
  virtual void CopyToStep(cow_String const& step, Object*& out) const;
  std::unique_ptr<kprC_StepObject> CopiedToStep(cow_String const& step) const override;
  void Suppress(bool byStep, bool keep) override;
  void Resume(bool byStep) override;
  /// Drops from all states what a step of that procedure does not know.
  virtual void ChangeProcedureType(unsigned int procedure);
  /// Tests the type against its create step and derives all steps anew.
  virtual void UpdateStates();

  // ---- steps around the object
  void Initialize(StepList const& steps) override;
  void ForcedInitialize(StepList const& steps) override;
  void InsertStep(int index, kprC_StepNameProcedurePair const& step) override;
  void RemoveStep(cow_String const& step) override;
  void RenameStep(cow_String const& oldName, cow_String const& newName) override;
  void ReplaceStep(cow_String const& step) override;

  /// Derives status and effective state of every step, then validates.
  virtual void Sync();
  /// Notes that members may be written to from outside: the next validation derives all steps anew.
  void Unsettle() noexcept { settled_ = false; }

 protected:
  kprC_StepDependent() = default;
  kprC_StepDependent(kprC_StepDependent const&) = default;
  kprC_StepDependent& operator=(kprC_StepDependent const&) = default;

  // ---- hooks of the validation and of the moves
  /// First test of AssertValid, before the states are looked at.
  virtual void AssertDefinition() const {}
  /// Last test of AssertValid: the procedure of the create step.
  virtual void AssertCreateStep(int procedure) const = 0;
  virtual void AssertMove(Quad const&, Quad const&) const {}

  /// The predicate's answer; a status that it does not know is refused with the family's number.
  static bool Answer(kprC_StatusPredicate const& predicate, mdl_PropagationStatusEnm status);
  int Find(cow_String const& step) const;
  Object const& Self() const { return static_cast<Object const&>(*this); }

  /// The first quad that holds a state; null if none does.
  Quad const* CreatingQuad() const;

  /// One quad a step of the model, in step order. Whoever writes to it calls Unsettle().
  Quads states;

 private:
  /// Whether there is anything to do.
  bool AssertChecks(std::span<kprC_StepCheck const> checks, Quad const* source, Quad const* destination) const;
  bool Holds(kprC_StepCheck const& check, Quad const* source, Quad const* destination) const;
  void DropStatesBetween(cow_String const& from, cow_String const& to);
  /// Whether there is one quad for each step of the list, with its name and its very procedure object.
  bool StandsOver(StepList const& steps) const;
  /// One quad for each step of the list, with what the quad of that name held.
  void LayOut(StepList const& steps);
  /// Marks an edit of the step that differs in nothing but plain members from what the step would inherit.
  void MarkEdit(int index, State& edit) const;
  void Walk();

  /// The quads are what a walk over them gives. Kept so that one call does not walk twice; not stored.
  bool settled_ = false;
};
