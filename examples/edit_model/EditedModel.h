#pragma once

#include <string>
#include <vector>

#include "ddr_Model.h"
#include "kprC_AnalysisStep.h"
#include "kprC_StepContainer.h"
#include "kprC_StepRepository.h"

/// A model under edit, with what a model layer does around the library: a change of the steps is tested with a
/// sequencer, made in the container of steps, and carried to every repository.
///
/// Copies share all containers, so one that is kept for undo costs next to nothing. A refused operation leaves the
/// model half changed, as the library does: the caller puts the copy back.
class EditedModel {
 public:
  using StepList = kprC_StepList;

  /// A model with the initial step.
  EditedModel();

  ddr_Model const& Model() const noexcept { return model_; }
  /// Opens in its place a model that was saved; nothing is derived anew.
  void Open(cow_String const& path);
  void Save(cow_String const& path) const;

  kprC_StepContainer const& Steps() const;
  /// The procedure of a step as the library's questions take it: 0 for the initial step.
  int Procedure(cow_String const& step) const;
  /// The repositories of step-dependent objects, and the one that scripts know by that name; null if there is none.
  std::vector<kprC_StepRepository const*> Repositories() const;
  kprC_StepRepository const* FindRepository(std::string_view name) const;
  /// The repository, for writing. @pre it is there
  kprC_StepRepository& EditRepository(std::string_view name);

  // ---- edits of steps; each ends with one update of every repository for one change of the list
  void AddStep(cow_String const& name, cow_String const& after, kprC_AnalysisStep const& step);
  /// Puts a step in the place of another one. What replaces a suppressed step is not suppressed.
  void ReplaceStep(cow_String const& name, kprC_AnalysisStep const& step);
  /// Lets `change` write to the step. A suppression among the changes is tested as one.
  template <class Change>
  void ChangeStep(cow_String const& name, Change change) {
    bool const suppressed = Steps().ConstGet(name).suppress;
    kprC_Step& step = EditSteps().Get(name);
    change(step);
    FinishChange(name, step, suppressed);
  }
  void SetStepSuppressed(cow_String const& name, bool suppress);
  void RemoveStep(cow_String const& name);
  /// A step that has the new name already goes, with the objects that it created.
  void RenameStep(cow_String const& name, cow_String const& newName);

 private:
  kprC_StepContainer& EditSteps();
  template <class Visit>
  void VisitRepositories(Visit visit) const;
  void FinishChange(cow_String const& name, kprC_Step& step, bool wasSuppressed);
  bool IsInitial(cow_String const& step) const { return step == Steps().Keys().First(); }
  int SequenceIndex(cow_String const& step) const { return Steps().Keys().FindMember(step) - 1; }
  cow_String StepBefore(cow_String const& step) const;
  void Carry(StepList const& steps, cow_String const& changedStep = {}, bool suppress = false);
  void Carry(cow_String const& changedStep = {}, bool suppress = false);

  ddr_Model model_;
};
