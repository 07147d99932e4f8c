#pragma once

#include "kprC_FlowEnums.h"
#include "kprC_StepList.h"
#include "mdl_IdRepositoryOfCows.h"

class kprC_AnalysisStep;
class kprC_FlowStep;

CLS_INSTANCE(kprC, mdl_IdRepositoryOfCows<cow_String, kprC_Step>);
extern template class mdl_IdRepositoryOfCows<cow_String, kprC_Step>;

/// The steps of one model by name, in the order of the analysis; the first is the initial step.
///
/// A container starts empty, gets its initial step once and its analysis steps by InsertAfter(). Each change of the
/// order is checked by the rule of kprC_StepSequencer; one that breaks it is refused, but stays: the caller undoes it.
/// Copies share all steps until one side edits a step. Whoever changes the container tells the step-dependent
/// repositories, with StepList().
class TVO_API kprC_StepContainer final : public mdl_IdRepositoryOfCows<cow_String, kprC_Step> {
  CLS_PERSISTENT(kprC, kprC_StepContainer)

 public:
  kprC_StepContainer() = default;
  kprC_StepContainer* DeepCopy() const override;

  /// The names in analysis order; shares the container's list.
  cow_List<cow_String> Keys() const override { return order_; }
  /// The names of the steps that take part in the analysis, the initial step among them.
  cow_List<cow_String> UnsuppressedKeys() const;
  /// The last name. @pre the container is not empty
  cow_String LastStep() const { return order_.Last(); }
  /// The steps as step-dependent objects see them; the procedures are shared, that of the initial step is empty.
  kprC_StepList StepList() const;

  /// Always refused: a step needs its place in the order. The step given by pointer is deleted.
  bool Insert(cow_String const& name, kprC_Step const& step) override;
  bool Insert(cow_String const& name, kprC_Step* step) override;
  /// Enters a copy of the initial step; refused with kprC_Assert 85 in a container that is not empty.
  void SetInitialStep(cow_String const& name, kprC_InitialStep const& step);
  /// Enters a copy of `step` behind the step `after`; a step of the same name goes, and the copy gets a new id.
  /// Refused with kprC_Assert 84, and nothing changes, if there is no step `after` or it is the one to be replaced;
  /// with 53 if the order is not valid then, which is not looked at while `loading`. Notes the change under the last
  /// command, if there is one. True if the step was taken.
  bool InsertAfter(cow_String const& after, cow_String const& name, kprC_AnalysisStep const& step, bool loading);
  /// False if there is no such step. Refused with kprC_Assert 53 if what is left is no valid order, the generation of
  /// added mass admitted.
  bool Remove(cow_String const& name) override;
  /// Gives a step another name; it keeps its place and its id. A step that has that name already goes; the order is not
  /// checked. An unknown step is refused with kprC_Assert 84.
  void ChangeKey(cow_String const& oldName, cow_String const& newName);
  /// As ChangeKey(), but false, and nothing changes, if there is no such step or the new name is taken.
  bool Rename(cow_String const& oldName, cow_String const& newName) override;
  void Clear() override;

  /// Reads a container from the record that the visitor stands on, as Dump() wrote it; the caller owns it. The order is
  /// not checked against the sequence rule. Refused: with kprC_Assert 84 a name in the order without a step, with 49 a
  /// first step that is no initial step and a later one that is no analysis step.
  static kprC_StepContainer* Load(cls_ReadVisitor const& reader);
  /// Writes a container by names instead of ids: one record with "steps", a generic map from names to steps, and
  /// "stepsorder", a generic list of the names. It is the object that the visitor is for: the root, or one that is
  /// embedded in the row of an outer visitor.
  static void Dump(kprC_StepContainer const& container, cls_WriteVisitor const& writer);

  /// Whether that step has a load case.
  bool HasLoadCase(cow_String const& name) const;
  /// Whether geometric nonlinearity is in force at that step: once on, it stays on. For a suppressed step, or a name
  /// that no step has, the answer is that of the last step. Linear in the number of steps.
  bool Nlgeom(cow_String const& stepName) const;
  /// The settings of the model's flow steps: the first that is not NONE, as long as all steps before it are flow steps.
  kprC_EnergyEquationEnm EnergyEquation() const;
  kprC_TurbulenceModelEnm TurbulenceModel() const;
  /// Which product the first step that takes part in the analysis is for; undefined without one.
  kprC_AnalysisProductEnm AnalysisProduct() const;
  bool HasUnsuppressedAnalysisStep() const { return AnalysisProduct() != UNDEFINED_ANALYSIS; }
  /// Refuses the first faulty step that takes part in the analysis, then an order that is not valid.
  void AssertValid() const;

 private:
  using Base = mdl_IdRepositoryOfCows<cow_String, kprC_Step>;

  /// Whether the order names each step once, and all names and steps stand in it.
  bool OrderIsSound() const;
  template <class Visit>
  void VisitActiveSteps(Visit visit) const;
  template <class Setting>
  Setting FlowSetting(Setting kprC_FlowStep::*field) const;
  void EnterInitial(cow_String const& name, Holder const& step);
  bool EnterAfter(cow_String const& after, cow_String const& name, Holder const& step);
  void MoveMeshDomain(unsigned int id, cow_String const& oldName, cow_String const& newName);

  cls_xpListString order_;
};

/// Walks the steps of a container in analysis order, as they stood when the walk was made.
///
///     for (kprC_StepContainerIT step(container); !step.IsDone(); step.Next()) Use(step.CurrentValue());
class TVO_API kprC_StepContainerIT {
 public:
  /// Stands on the first step.
  explicit kprC_StepContainerIT(kprC_StepContainer const& container) : container_(container), name_(container.Keys()) {}

  /// Goes to the first step, or to the next; false if there is none.
  bool First() { return name_.First(); }
  bool Next() { return name_.Next(); }
  bool IsDone() const { return name_.IsDone(); }
  /// @pre !IsDone()
  cow_String const& CurrentKey() const { return name_.Current(); }
  kprC_Step const& CurrentValue() const { return container_.ConstGet(CurrentKey()); }

 private:
  kprC_StepContainer container_;
  cow_ListIter<cow_String> name_;
};
