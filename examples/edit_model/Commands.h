#pragma once

#include "CommandForm.h"
#include "EditedModel.h"
#include "RowPrinter.h"

/// What a command works on: the model, and where it prints.
struct Context {
  EditedModel& model;
  RowPrinter const& out;
};

/// Executes the command on a line that is not empty, and notes it if it is an edit. Raises Unreadable, or what the
/// library refuses with; the model may be half changed then, but the histories stand as before.
void Execute(Context const& context, ScriptLine const& line);

/// The repository of objects of that name. The line cannot be read if there is none.
kprC_StepRepository const& ObjectsNamed(EditedModel const& model, std::string const& name);
/// Whether the name is that of the steps.
bool IsSteps(std::string const& name);

// ---- edits

void AddStep(Context const& context, Arguments const& arguments);
void ReplaceStep(Context const& context, Arguments const& arguments);
void Create(Context const& context, Arguments const& arguments);
void Set(Context const& context, Arguments const& arguments);
void SetInStep(Context const& context, Arguments const& arguments);
void Deactivate(Context const& context, Arguments const& arguments);
void Reset(Context const& context, Arguments const& arguments);
void Move(Context const& context, Arguments const& arguments);
void Copy(Context const& context, Arguments const& arguments);
void Suppress(Context const& context, Arguments const& arguments);
void Resume(Context const& context, Arguments const& arguments);
void Remove(Context const& context, Arguments const& arguments);
void Rename(Context const& context, Arguments const& arguments);
void Save(Context const& context, Arguments const& arguments);
void Open(Context const& context, Arguments const& arguments);

// ---- listings

void History(Context const& context, Arguments const& arguments);
void Show(Context const& context, Arguments const& arguments);
void Invalid(Context const& context, Arguments const& arguments);
void Offered(Context const& context, Arguments const& arguments);
void Appendable(Context const& context, Arguments const& arguments);

/// A status without the prefix that all have in common.
std::string StatusWord(mdl_PropagationStatusEnm status);
