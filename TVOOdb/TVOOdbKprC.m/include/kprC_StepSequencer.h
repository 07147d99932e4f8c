#pragma once

#include "kprC_Procedures.h"
#include "kprC_StepContainer.h"

/// The rule of which analysis procedure may follow which, for the ordered steps of one model.
///
/// The sequence has one entry for each step after the initial one: the step's procedure, or 1 for a suppressed step,
/// which is passed over. Indexes count in the sequence, from 0 at the first analysis step. Sequences made of steps are
/// read when they are asked to be, by Run() and its kin; the container is shared, its steps are not copied. Questions
/// about one place cost time linear in the number of steps; what may be appended is known in constant time.
class TVO_API kprC_StepSequencer {
 public:
  /// The entry of a suppressed step.
  static constexpr unsigned int suppressedEntry = 1;

  /// An empty sequence over no steps. `allowAddedMass` admits the generation of added mass, else refused.
  explicit kprC_StepSequencer(bool allowAddedMass);
  /// An empty sequence over the steps of a container as they are now.
  kprC_StepSequencer(kprC_StepContainer const& steps, bool allowAddedMass);
  /// The sequence of the given entries. An invalid one is refused as Append() does it.
  kprC_StepSequencer(cow_List<unsigned int> const& entries, bool allowAddedMass);
  /// The first `n` entries of another sequence, over no steps. A shortened copy takes a frequency step as seen only if
  /// the whole sequence has seen one and a complex frequency step is among the entries that are left.
  kprC_StepSequencer(kprC_StepSequencer const& other, int n);
  kprC_StepSequencer(kprC_StepSequencer const&) = default;
  kprC_StepSequencer& operator=(kprC_StepSequencer const&) = default;
  virtual ~kprC_StepSequencer();

  /// Makes the sequence of the container's steps. Refused with kprC_Assert 53 at the first step that does not fit.
  void Run();
  /// The same up to a step, with it or without it; empty for the initial step.
  void Run(cow_String const& stepName, bool upToBefore);
  /// The same with a step of that procedure behind a step; behind a suppressed one it counts as suppressed, too.
  void InsertAfter(cow_String const& stepName, unsigned int procedure);
  /// The same with that procedure in place of a step's, suppressed or not. The initial step is refused with
  /// kprC_Assert 148.
  void Replace(cow_String const& stepName, unsigned int procedure);

  /// What the rule says of `id` after the first `position` entries: 1 yes, 0 no, -1 ask one position further back.
  /// A position outside the sequence stands for its end.
  int TestAppendable(unsigned int id, int position) const;
  /// Whether a step of that procedure may follow; 1, a suppressed step, always may. The answer is kept until an entry
  /// other than 1 is added or removed.
  bool IsAppendable(unsigned int id) const;
  /// Adds an entry; refused with kprC_Assert 53 if it may not follow.
  void Append(unsigned int id);
  /// Takes an entry out; refused with kprC_Assert 53 if what stands behind it would not fit any more.
  void Remove(int index);

  // Whether the entries behind a place still fit after the change. An index outside the sequence is refused with
  // kprC_Assert 54.

  /// The last entry and suppressed ones may always go.
  bool IsRemovable(int index) const;
  bool IsSuppressable(int index) const;
  /// Whether the suppressed step there may count again, with its procedure; true if it is not suppressed.
  bool IsResumable(int index, unsigned int procedure) const;

  /// What may be appended, in the order in which it was found out; 1 is among it if it was asked for.
  cow_List<unsigned int> Appendable() const;
  /// The general procedures among Appendable(), and the linear perturbations.
  cow_List<unsigned int> AppendableGeneral() const;
  cow_List<unsigned int> AppendablePerturbation() const;

  /// Empties the sequence.
  void ClearStates();
  /// Forgets the answers of IsAppendable().
  void ClearAppendableCache() const;

 private:
  template <class Visit>
  void ReadSteps(Visit visit);
  bool Fits(unsigned int id) const;
  bool AppendIfItFits(unsigned int id);
  bool RestFits(int index, cow_List<unsigned int> const& inPlace) const;
  void CheckIndex(int index) const;
  kprC_ProcedureSet OpenAt(int position) const;
  cow_List<unsigned int> AppendableOfKind(bool perturbation) const;

  kprC_StepContainer container_;
  bool frequencySeen_ = false;
  bool allowAddedMass_;
  cow_List<unsigned int> ids_;
  cow_List<unsigned int> sequence_;
  mutable cow_List<unsigned int> appendable_;
  mutable cow_List<unsigned int> refused_;
  /// For each entry, what the walk back from its position allows. Kept, because a walk over many undecided entries for
  /// each new one would make long sequences quadratic.
  cow_List<kprC_ProcedureSet> open_;
};
