#pragma once

#include "kprC_StepNameProcedurePair.h"
#include "kprC_StepState.h"
#include "kprC_Suppression.h"
#include "mdl_PropagationEnums.h"
#include "rgnC_Region.h"

/// Declares the names of a value that propagates and of its state, such as u1Cmd() and u1StateCmd().
#define KPRC_VALUE_CMD(name) KPRC_CMD(name) KPRC_CMD(name##State)

/// A named object of the model that lives over its steps, as callers see it that do not know its family.
///
/// Each edit stores what the user said in the step it was said for, derives all steps anew and validates the object, so a
/// refusal comes out of the edit itself. Nothing is rolled back then: a caller that wants the old object keeps a copy.
class TVO_API kprC_StepObject : public cls_Persistent {
 public:
  using StepList = cls_xo1DArrayList<kprC_StepNameProcedurePair>;
  kprC_StepObject* Copy() const override = 0;

  /// Refuses a bad object. A suppressed object is not looked at.
  virtual void AssertValid() const = 0;
  /// Name of the first step that holds a state. Refused if none does.
  virtual cow_String CreateStepName() const = 0;
  virtual bool IsMember(cow_String const& step) const = 0;
  /// Whether the object has a value in force in that step; CheckStep refuses if it has not.
  virtual bool HasStep(cow_String const& step) const = 0;
  virtual void CheckStep(cow_String const& step) const = 0;
  /// How the object stands in a step, and in all steps in order. An unknown step is refused with its name.
  virtual mdl_PropagationStatusEnm Status(cow_String const& step) const = 0;
  virtual cow_List<mdl_PropagationStatusEnm> History() const = 0;
  virtual bool IsEditable(cow_String const& step) const = 0;
  /// What the object holds in that step, null where it holds nothing.
  virtual kprC_StepState const* StateIn(cow_String const& step) const = 0;
  virtual cow_List<cow_String> StepNames() const = 0;

  /// Stores what the user said for a step; `state` must be of the family. See Insert of the families.
  virtual bool InsertState(cow_String const& step, kprC_StepState const& state) = 0;
  virtual void Deactivate(cow_String const& step) = 0;
  virtual void Reset(cow_String const& step) = 0;
  virtual void Move(cow_String const& from, cow_String const& to) = 0;
  /// A copy of the object as created in that step; the caller owns it.
  virtual std::unique_ptr<kprC_StepObject> CopiedToStep(cow_String const& step) const = 0;

  virtual void Suppress(bool byStep, bool keep) = 0;
  virtual void Resume(bool byStep) = 0;
  virtual cls_xoList<rgnC_Region> Regions(rgnC_RegionType type) const = 0;
  virtual cow_List<cow_String> Amplitudes() const = 0;

  /// Whether the type may stand in a step of that procedure (0: the initial step).
  virtual bool ValidInStep(int procedure, bool flag, bool relax, int firstProcedure) const = 0;
  virtual bool ValidInStep(kprC_Step const& step, bool flag, bool relax, int firstProcedure) const = 0;

  // What a change of the step list does to the object.
  virtual void Initialize(StepList const& steps) = 0;
  /// As Initialize, for objects that must go in though they would fail validation now.
  virtual void ForcedInitialize(StepList const& steps) = 0;
  virtual void InsertStep(int index, kprC_StepNameProcedurePair const& step) = 0;
  virtual void RemoveStep(cow_String const& step) = 0;
  virtual void RenameStep(cow_String const& oldName, cow_String const& newName) = 0;
  virtual void ReplaceStep(cow_String const& step) = 0;

  // ---- names under which scripts know what the families share
  KPRC_CMD(name)
  KPRC_CMD(category)
  KPRC_CMD(region)
  KPRC_NAMED_CMD(csysCmd, "localCsys")
  KPRC_CMD(amplitude)
  KPRC_CMD(amplitudeState)
  KPRC_CMD(status)
  KPRC_NAMED_CMD(setParametersCmd, "setValues")
  KPRC_NAMED_CMD(modifyParametersCmd, "setValuesInStep")
  KPRC_CMD(deactivate)
  KPRC_CMD(history)
  KPRC_CMD(createStepName)
  KPRC_CMD(stepName)
  KPRC_CMD(fromStepName)
  KPRC_CMD(toStepName)
  KPRC_CMD(move)
  KPRC_CMD(reset)
  KPRC_CMD(suppress)
  KPRC_CMD(suppressed)
  KPRC_CMD(resume)
  KPRC_NAMED_CMD(globalCsysName, "(Global)")
  KPRC_CMD(distribution)
  KPRC_CMD(distributionType)
  KPRC_CMD(fieldName)

  kprC_SuppressionEnm suppressionState = RESUMED;
};
