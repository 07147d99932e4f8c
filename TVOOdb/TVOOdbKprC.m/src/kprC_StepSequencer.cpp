#include "kprC_StepSequencer.h"

#include <algorithm>
#include <utility>

#include "kprC_LabelsBitMap.h"
#include "kprC_assert.h"
#include "kprC_sequenceTable.h"

namespace {

constexpr int usualLength = 20;

// The row of kprC_SequenceRows that speaks of each procedure, by the procedure's bit.
constexpr auto rowOfBit = [] {
  std::array<unsigned char, std::size(kprC_ProcedureRows)> rows{};
  for (std::size_t bit = 0; bit < rows.size(); ++bit) {
    while (!kprC_SequenceRows[rows[bit]].previous.Contains(kprC_ProcedureRows[bit].id)) ++rows[bit];
  }
  return rows;
}();

static_assert(
    [] {
      for (kprC_SequenceRow const& row : kprC_SequenceRows) {
        bool const undecided = row.undecided.Contains(kprC_Procedure::ComplexFrequency);
        if (undecided && !row.complexFrequencyAfterFrequency) return false;
      }
      return true;
    }(),
    "once a frequency step has been seen, a complex frequency step is decided without a walk back; the sets that are "
    "kept for the walk do not know of that step");

// @pre `entry` is a procedure, as all entries of a sequence but the suppressed ones are
kprC_SequenceRow const& RowOf(unsigned int entry) {
  return kprC_SequenceRows[rowOfBit[static_cast<std::size_t>(kprC_ProcedureBit(entry))]];
}

kprC_ProcedureSet Allowed(kprC_SequenceRow const& row, bool addedMass) {
  return addedMass ? row.allowed | row.allowedWithAddedMass : row.allowed;
}

kprC_ProcedureSet Undecided(kprC_SequenceRow const& row, bool addedMass) {
  return addedMass ? row.undecided | row.undecidedWithAddedMass : row.undecided;
}

kprC_ProcedureSet Both(kprC_ProcedureSet a, kprC_ProcedureSet b) { return ~(~a | ~b); }

bool IsInitial(cow_String const& stepName) { return stepName == kprC_Step::initialCmd(); }

}  // namespace

kprC_StepSequencer::kprC_StepSequencer(bool allowAddedMass)
    : allowAddedMass_(allowAddedMass), ids_(kprC_LabelsBitMap::Instance().Ids()), sequence_(usualLength) {}

kprC_StepSequencer::kprC_StepSequencer(kprC_StepContainer const& steps, bool allowAddedMass)
    : container_(steps),
      allowAddedMass_(allowAddedMass),
      ids_(kprC_LabelsBitMap::Instance().Ids()),
      sequence_(steps.Size()),
      open_(steps.Size()) {}

kprC_StepSequencer::kprC_StepSequencer(cow_List<unsigned int> const& entries, bool allowAddedMass)
    : kprC_StepSequencer(allowAddedMass) {
  for (unsigned int const entry : entries) Append(entry);
}

kprC_StepSequencer::kprC_StepSequencer(kprC_StepSequencer const& other, int n)
    : allowAddedMass_(other.allowAddedMass_), ids_(other.ids_), sequence_(other.sequence_), open_(other.open_) {
  int const length = std::clamp(n, 0, sequence_.Length());
  bool const whole = length == sequence_.Length();
  sequence_.Resize(length);
  open_.Resize(length);
  // Append() and Remove() look for frequency steps; that complex frequency steps decide here is relied on by callers.
  frequencySeen_ = other.frequencySeen_ && (whole || sequence_.IsMember(kprC_Procedure::ComplexFrequency));
}

kprC_StepSequencer::~kprC_StepSequencer() = default;

/// Calls `visit(name, entry)` for each step after the initial one, until it answers false.
template <class Visit>
void kprC_StepSequencer::ReadSteps(Visit visit) {
  bool initial = true;
  for (kprC_StepContainerIT current(container_); !current.IsDone(); current.Next()) {
    if (std::exchange(initial, false)) continue;
    kprC_Step const& step = current.CurrentValue();
    if (!visit(current.CurrentKey(), step.suppress ? suppressedEntry : step.ProcedureType())) return;
  }
}

void kprC_StepSequencer::Run() {
  ClearStates();
  ReadSteps([this](cow_String const&, unsigned int entry) {
    Append(entry);
    return true;
  });
}

void kprC_StepSequencer::Run(cow_String const& stepName, bool upToBefore) {
  ClearStates();
  if (IsInitial(stepName)) return;
  ReadSteps([&](cow_String const& name, unsigned int entry) {
    bool const there = name == stepName;
    if (!there || !upToBefore) Append(entry);
    return !there;
  });
}

void kprC_StepSequencer::InsertAfter(cow_String const& stepName, unsigned int procedure) {
  ClearStates();
  if (IsInitial(stepName)) Append(procedure);
  ReadSteps([&](cow_String const& name, unsigned int entry) {
    Append(entry);
    if (name == stepName) Append(entry == suppressedEntry ? suppressedEntry : procedure);
    return true;
  });
}

void kprC_StepSequencer::Replace(cow_String const& stepName, unsigned int procedure) {
  ClearStates();
  kprC_Assert(!IsInitial(stepName), 148);
  ReadSteps([&](cow_String const& name, unsigned int entry) {
    Append(name == stepName ? procedure : entry);
    return true;
  });
}

int kprC_StepSequencer::TestAppendable(unsigned int id, int position) const {
  if (id == suppressedEntry) return 1;
  int const length = sequence_.Length();
  int const at = position < 0 || position > length ? length : position;
  if (at == 0) return Allowed(kprC_FirstStepRow, allowAddedMass_).Contains(id) ? 1 : 0;

  unsigned int const previous = sequence_[at - 1];
  bool const lifted = frequencySeen_ && id == kprC_Procedure::ComplexFrequency;
  if (previous == suppressedEntry) return lifted ? 1 : -1;
  kprC_SequenceRow const& row = RowOf(previous);
  if (Allowed(row, allowAddedMass_).Contains(id) || (lifted && row.complexFrequencyAfterFrequency)) return 1;
  return Undecided(row, allowAddedMass_).Contains(id) ? -1 : 0;
}

bool kprC_StepSequencer::IsAppendable(unsigned int id) const {
  bool const fits = Fits(id);
  cow_List<unsigned int>& answers = fits ? appendable_ : refused_;
  if (!answers.IsMember(id)) answers.Append(id);
  return fits;
}

/// The answer that is kept, or what the rule says now.
bool kprC_StepSequencer::Fits(unsigned int id) const {
  if (appendable_.IsMember(id)) return true;
  if (refused_.IsMember(id)) return false;
  int const end = sequence_.Length();
  int const answer = TestAppendable(id, end);
  return answer == 1 || (answer == -1 && open_[end - 1].Contains(id));
}

/// What may follow the first `position` entries as long as no frequency step has been seen. @pre open_ is known so far
kprC_ProcedureSet kprC_StepSequencer::OpenAt(int position) const {
  if (position == 0) return Allowed(kprC_FirstStepRow, allowAddedMass_);
  unsigned int const previous = sequence_[position - 1];
  kprC_ProcedureSet const before = open_[position - 1];
  if (previous == suppressedEntry) return before;
  kprC_SequenceRow const& row = RowOf(previous);
  return Allowed(row, allowAddedMass_) | Both(Undecided(row, allowAddedMass_), before);
}

void kprC_StepSequencer::Append(unsigned int id) { kprC_Assert(AppendIfItFits(id), 53); }

bool kprC_StepSequencer::AppendIfItFits(unsigned int id) {
  // A procedure that fits makes all answers out of date, so that its own is not kept in the first place.
  if ((id == suppressedEntry || !Fits(id)) && !IsAppendable(id)) return false;
  open_.Append(OpenAt(sequence_.Length()));
  sequence_.Append(id);
  if (id == suppressedEntry) return true;
  ClearAppendableCache();
  frequencySeen_ = frequencySeen_ || id == kprC_Procedure::Frequency;
  return true;
}

void kprC_StepSequencer::Remove(int index) {
  kprC_Assert(IsRemovable(index), 53);
  unsigned int const removed = sequence_[index];
  sequence_.RemoveIndex(index);
  open_.Resize(index);
  for (int i = index; i < sequence_.Length(); ++i) open_.Append(OpenAt(i));
  if (removed == suppressedEntry) return;
  ClearAppendableCache();
  if (removed == kprC_Procedure::Frequency) frequencySeen_ = sequence_.IsMember(removed);
}

bool kprC_StepSequencer::IsRemovable(int index) const {
  CheckIndex(index);
  return index == sequence_.Length() - 1 || sequence_[index] == suppressedEntry || RestFits(index, {});
}

bool kprC_StepSequencer::IsSuppressable(int index) const {
  CheckIndex(index);
  return sequence_[index] == suppressedEntry || RestFits(index, {suppressedEntry});
}

bool kprC_StepSequencer::IsResumable(int index, unsigned int procedure) const {
  CheckIndex(index);
  return sequence_[index] != suppressedEntry || RestFits(index, {procedure});
}

/// Whether the entries behind `index` fit behind those before it with `inPlace` between them.
bool kprC_StepSequencer::RestFits(int index, cow_List<unsigned int> const& inPlace) const {
  kprC_StepSequencer trial(*this, index);
  for (unsigned int const entry : inPlace) {
    if (!trial.AppendIfItFits(entry)) return false;
  }
  for (int i = index + 1; i < sequence_.Length(); ++i) {
    if (!trial.AppendIfItFits(sequence_[i])) return false;
  }
  return true;
}

void kprC_StepSequencer::CheckIndex(int index) const {
  kprC_Assert(0 <= index && index < sequence_.Length(), 54);
}

cow_List<unsigned int> kprC_StepSequencer::Appendable() const {
  // Suppressed entries and what is no procedure can have been asked for as well; they must not stand in for one.
  auto const procedures = [](cow_List<unsigned int> const& answers) {
    int count = 0;
    for (unsigned int const id : answers) count += kprC_ProcedureBit(id) >= 0 ? 1 : 0;
    return count;
  };
  if (procedures(appendable_) + procedures(refused_) < ids_.Length()) {
    for (unsigned int const id : ids_) IsAppendable(id);
  }
  return appendable_;
}

cow_List<unsigned int> kprC_StepSequencer::AppendableGeneral() const { return AppendableOfKind(false); }
cow_List<unsigned int> kprC_StepSequencer::AppendablePerturbation() const { return AppendableOfKind(true); }

cow_List<unsigned int> kprC_StepSequencer::AppendableOfKind(bool perturbation) const {
  cow_List<unsigned int> kept;
  for (unsigned int const id : Appendable()) {
    if (id != suppressedEntry && kprC_Step::Perturbation(id) == perturbation) kept.Append(id);
  }
  return kept;
}

void kprC_StepSequencer::ClearStates() {
  sequence_.Clear();
  open_.Clear();
  frequencySeen_ = false;
  ClearAppendableCache();
}

void kprC_StepSequencer::ClearAppendableCache() const {
  appendable_.Clear();
  refused_.Clear();
}
