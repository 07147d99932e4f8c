#include "EditedModel.h"

#include "dbc_ModelFile.h"
#include "kprC_ModelMembers.h"
#include "kprC_StepSequencer.h"
#include "kprC_assert.h"

namespace {

using StepsOfModel = ddr_MemberShortcut<ddr_Model, kprC_StepContainer, 1>;

kprC_StepList Without(kprC_StepList steps, cow_String const& name) {
  for (int i = 0; i < steps.Length(); ++i) {
    if (steps[i].stepName == name) {
      steps.RemoveIndex(i);
      break;
    }
  }
  return steps;
}

}  // namespace

EditedModel::EditedModel() {
  EditSteps().SetInitialStep(kprC_Step::initialCmd(), kprC_InitialStep());
  Carry();
}

void EditedModel::Open(cow_String const& path) {
  model_ = *dbc_Open<ddr_Model>(path);
  // A file knows nothing of families that came later.
  ddr_Model const fresh;
  for (auto const& entry : fresh.extensions) {
    if (model_.HasExtension(entry.key)) continue;
    model_.extensions.Insert(entry.key, entry.value);
    if (auto* const repository = dynamic_cast<kprC_StepRepository*>(&model_.GetExtension(entry.key))) {
      repository->UpdateSteps(Steps().StepList(), {}, false);
    }
  }
}

void EditedModel::Save(cow_String const& path) const { dbc_SaveObject(model_, path); }

// ---- containers

kprC_StepContainer const& EditedModel::Steps() const { return StepsOfModel().ConstGet(model_); }

kprC_StepContainer& EditedModel::EditSteps() { return StepsOfModel().Get(model_); }

int EditedModel::Procedure(cow_String const& step) const {
  unsigned int const type = Steps().ConstGet(step).ProcedureType();
  return type == kprC_InitialStep::procedureTypeOfInitialStep ? 0 : static_cast<int>(type);
}

template <class Visit>
void EditedModel::VisitRepositories(Visit visit) const {
  for (auto const& entry : model_.extensions) {
    mdl_Extension const& value = entry.value.ConstGet().ConstGetValue();
    if (auto const* const repository = dynamic_cast<kprC_StepRepository const*>(&value)) visit(entry.key, *repository);
  }
}

std::vector<kprC_StepRepository const*> EditedModel::Repositories() const {
  std::vector<kprC_StepRepository const*> repositories;
  VisitRepositories(
      [&](cow_String const&, kprC_StepRepository const& repository) { repositories.push_back(&repository); });
  return repositories;
}

kprC_StepRepository const* EditedModel::FindRepository(std::string_view name) const {
  for (kprC_StepRepository const* repository : Repositories()) {
    if (repository->RepositoryName() == name) return repository;
  }
  return nullptr;
}

kprC_StepRepository& EditedModel::EditRepository(std::string_view name) {
  cow_String member;
  VisitRepositories([&](cow_String const& key, kprC_StepRepository const& repository) {
    if (repository.RepositoryName() == name) member = key;
  });
  return static_cast<kprC_StepRepository&>(model_.GetExtension(member));
}

void EditedModel::Carry(StepList const& steps, cow_String const& changedStep, bool suppress) {
  cow_List<cow_String> members;
  VisitRepositories([&](cow_String const& member, kprC_StepRepository const&) { members.Append(member); });
  for (cow_String const& member : members) {
    static_cast<kprC_StepRepository&>(model_.GetExtension(member)).UpdateSteps(steps, changedStep, suppress);
  }
}

void EditedModel::Carry(cow_String const& changedStep, bool suppress) {
  Carry(Steps().StepList(), changedStep, suppress);
}

// ---- edits of steps

cow_String EditedModel::StepBefore(cow_String const& step) const {
  int const index = SequenceIndex(step);
  return index < 0 ? cow_String() : Steps().Keys()[index];
}

void EditedModel::AddStep(cow_String const& name, cow_String const& after, kprC_AnalysisStep const& step) {
  bool const known = Steps().IsMember(name);
  if (known && StepBefore(name) == after) return ReplaceStep(name, step);
  step.AssertValid();
  kprC_Assert(!IsInitial(name), 148);
  kprC_StepContainer others = Steps();
  // A step of that name leaves its place first: a suppressed one is passed over, as if it were gone.
  if (known) others.Get(name).suppress = true;
  kprC_StepSequencer(others, false).InsertAfter(after, step.ProcedureType());
  StepList const rest = Without(Steps().StepList(), name);
  EditSteps().InsertAfter(after, name, step, false);
  if (known) Carry(rest);
  Carry();
}

void EditedModel::ReplaceStep(cow_String const& name, kprC_AnalysisStep const& step) {
  bool const wasSuppressed = Steps().ConstGet(name).suppress;
  bool const sameProcedure = Steps().ConstGet(name).DynTypeId() == step.DynTypeId();
  step.AssertValid();
  kprC_StepSequencer(Steps(), false).Replace(name, step.ProcedureType());
  EditSteps().InsertAfter(StepBefore(name), name, step, false);
  // The repositories take another procedure for a replacement, and then settle what the old step had suppressed. The
  // same procedure in place of a suppressed step is a resumption to them.
  bool const resumes = wasSuppressed && !step.suppress && sameProcedure;
  bool const suppresses = !wasSuppressed && step.suppress;
  Carry(resumes || suppresses ? name : cow_String(), suppresses);
}

void EditedModel::FinishChange(cow_String const& name, kprC_Step& step, bool wasSuppressed) {
  step.AssertValid();
  if (step.suppress == wasSuppressed) return Carry();
  bool const suppress = step.suppress;
  step.suppress = wasSuppressed;
  SetStepSuppressed(name, suppress);
}

void EditedModel::SetStepSuppressed(cow_String const& name, bool suppress) {
  unsigned int const procedure = Steps().ConstGet(name).ProcedureType();
  if (IsInitial(name)) {
    // It is in no sequence and answers for itself.
    kprC_Step& step = EditSteps().Get(name);
    return suppress ? step.Suppress() : step.Resume();
  }
  kprC_StepSequencer sequence(Steps(), false);
  sequence.Run();
  int const index = SequenceIndex(name);
  if (suppress) {
    kprC_Assert(sequence.IsSuppressable(index), 257);
    EditSteps().Get(name).Suppress();
  } else {
    kprC_Assert(sequence.IsResumable(index, procedure), 258);
    EditSteps().Get(name).Resume();
  }
  Carry(name, suppress);
}

void EditedModel::RemoveStep(cow_String const& name) {
  Steps().ConstGet(name);
  kprC_StepSequencer sequence(Steps(), true);
  sequence.Run();
  kprC_Assert(sequence.IsRemovable(SequenceIndex(name)), 53);
  EditSteps().Remove(name);
  Carry();
}

void EditedModel::RenameStep(cow_String const& name, cow_String const& newName) {
  Steps().ConstGet(name);
  kprC_Assert(name == newName || (!IsInitial(name) && !IsInitial(newName)), 148);
  bool const taken = name != newName && Steps().IsMember(newName);
  StepList const rest = Without(Steps().StepList(), newName);
  EditSteps().ChangeKey(name, newName);
  if (taken) Carry(rest);
  Carry();
}
