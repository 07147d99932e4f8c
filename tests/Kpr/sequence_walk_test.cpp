#include <algorithm>
#include <numeric>
#include <optional>
#include <random>
#include <set>

#include "../StepPlan.h"
#include "kprC_StepContainer.h"
#include "kprC_StepSequencer.h"

// The sequencer beside a second, slow reading of its rule: a table of names and a walk back for each question.

namespace {

using namespace kprC_Procedure;
using Ids = std::vector<unsigned int>;
constexpr unsigned int suppressed = kprC_StepSequencer::suppressedEntry;
constexpr int atEnd = -1;

struct RuleRow {
  Ids previous;  ///< empty: the first step
  Ids allowed;
  Ids undecided;
  Ids allowedWithAddedMass;
  Ids undecidedWithAddedMass;
  bool complexOnceFrequencySeen;
};

std::vector<RuleRow> const rule{
    // clang-format off
    {{}, {Buckle, CoupledTempDisplacement, CoupledThermalElectric, ExplicitDynamics, Frequency, Geostatic,
     HeatTransfer, ImplicitDynamics, MassDiffusion, Soils, Static, StaticRiks, StaticLinearPerturbation,
     SteadyStateDirect, Visco, TempDisplacementDynamics, SubstructureGenerate, DirectCyclic, Flow, EmagTimeHarmonic,
     ElecThermalStructural, ReducedBasisGenerate, CoupledThermalElectrochemical, CoupledThermalElectrochemStruct,
     CoupledThermalElectrochemStructPorepressure}, {}, {UsaAddedMassGeneration}, {}, false},
    {{Anneal, ExplicitDynamics, TempDisplacementDynamics}, {Anneal, ExplicitDynamics, TempDisplacementDynamics}, {},
     {}, {}, true},
    {{Buckle, ModalDynamics, RandomResponse, ResponseSpectrum, StaticLinearPerturbation, SteadyStateDirect,
     SteadyStateModal, SubstructureGenerate, ComplexFrequency, SteadyStateSubspace, ReducedBasisGenerate}, {Buckle,
     Frequency, StaticLinearPerturbation, SteadyStateDirect, SubstructureGenerate, DirectCyclic,
     ReducedBasisGenerate}, {CoupledTempDisplacement, CoupledThermalElectric, Geostatic, HeatTransfer,
     ImplicitDynamics, MassDiffusion, ModalDynamics, RandomResponse, ResponseSpectrum, Soils, Static, StaticRiks,
     SteadyStateModal, SubspaceDynamics, Visco, ComplexFrequency, SteadyStateSubspace, Flow, ElecThermalStructural,
     CoupledThermalElectrochemical, CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure}, {},
     {UsaAddedMassGeneration}, true},
    {{CoupledTempDisplacement, ElecThermalStructural}, {Buckle, CoupledTempDisplacement, Frequency, ImplicitDynamics,
     Static, StaticLinearPerturbation, SteadyStateDirect, Visco, SubstructureGenerate, ElecThermalStructural,
     ReducedBasisGenerate}, {}, {}, {}, true},
    {{CoupledThermalElectric, HeatTransfer}, {CoupledThermalElectric, HeatTransfer}, {}, {}, {}, false},
    {{Frequency}, {Buckle, Frequency, ModalDynamics, RandomResponse, ResponseSpectrum, StaticLinearPerturbation,
     SteadyStateDirect, SteadyStateModal, SubspaceDynamics, SubstructureGenerate, ComplexFrequency,
     SteadyStateSubspace, DirectCyclic, ReducedBasisGenerate}, {CoupledTempDisplacement, CoupledThermalElectric,
     Geostatic, HeatTransfer, ImplicitDynamics, MassDiffusion, Soils, Static, StaticRiks, Visco, Flow,
     ElecThermalStructural, CoupledThermalElectrochemical, CoupledThermalElectrochemStruct,
     CoupledThermalElectrochemStructPorepressure}, {}, {UsaAddedMassGeneration}, false},
    {{Geostatic, Soils}, {Buckle, Frequency, Geostatic, ImplicitDynamics, Soils, Static, StaticRiks,
     StaticLinearPerturbation, SteadyStateDirect, Visco, SubstructureGenerate, ReducedBasisGenerate}, {}, {}, {},
     true},
    {{ImplicitDynamics}, {ImplicitDynamics, Static, StaticRiks, SubspaceDynamics, Visco, SubstructureGenerate,
     DirectCyclic}, {}, {UsaAddedMassGeneration}, {}, true},
    {{MassDiffusion}, {MassDiffusion}, {}, {}, {}, false},
    {{Static, Visco}, {Buckle, CoupledTempDisplacement, Frequency, Geostatic, ImplicitDynamics, Soils, Static,
     StaticRiks, StaticLinearPerturbation, SteadyStateDirect, Visco, SubstructureGenerate, DirectCyclic,
     ElecThermalStructural, ReducedBasisGenerate}, {}, {}, {}, true},
    {{StaticRiks}, {}, {}, {}, {}, false},
    {{SubspaceDynamics}, {ImplicitDynamics, Static, StaticRiks, SubspaceDynamics, Visco, SubstructureGenerate}, {},
     {UsaAddedMassGeneration}, {}, true},
    {{UsaAddedMassGeneration}, {}, {}, {ImplicitDynamics, Static, StaticRiks, SubspaceDynamics,
     UsaAddedMassGeneration, Visco, SubstructureGenerate}, {}, true},
    {{DirectCyclic}, {Buckle, Frequency, ImplicitDynamics, Static, StaticRiks, StaticLinearPerturbation,
     SteadyStateDirect, Visco, SubstructureGenerate, DirectCyclic, ReducedBasisGenerate}, {}, {}, {}, true},
    {{Flow}, {Flow}, {}, {}, {}, false},
    {{EmagTimeHarmonic}, {EmagTimeHarmonic}, {}, {}, {}, true},
    {{CoupledThermalElectrochemical}, {CoupledThermalElectrochemical}, {}, {}, {}, true},
    {{CoupledThermalElectrochemStruct}, {CoupledThermalElectrochemStruct}, {}, {}, {}, true},
    {{CoupledThermalElectrochemStructPorepressure}, {CoupledThermalElectrochemStructPorepressure}, {}, {}, {}, true},
    // clang-format on
};

bool Has(Ids const& ids, unsigned int id) { return std::find(ids.begin(), ids.end(), id) != ids.end(); }

struct SlowSequence {
  bool addedMass = false;
  bool frequencySeen = false;
  Ids entries{};

  int Length() const { return static_cast<int>(entries.size()); }
  unsigned int Entry(int index) const { return entries[static_cast<std::size_t>(index)]; }

  int Test(unsigned int id, int position) const {
    if (id == suppressed) return 1;
    bool const lifted = frequencySeen && id == ComplexFrequency;
    int const at = position < 0 || position > Length() ? Length() : position;
    if (at > 0 && Entry(at - 1) == suppressed) return lifted ? 1 : -1;
    RuleRow const& row = *std::find_if(rule.begin(), rule.end(), [&](RuleRow const& candidate) {
      return at == 0 ? candidate.previous.empty() : Has(candidate.previous, Entry(at - 1));
    });
    if (Has(row.allowed, id) || (addedMass && Has(row.allowedWithAddedMass, id))) return 1;
    if (lifted && row.complexOnceFrequencySeen) return 1;
    return Has(row.undecided, id) || (addedMass && Has(row.undecidedWithAddedMass, id)) ? -1 : 0;
  }
  bool CanAppend(unsigned int id) const {
    int position = Length();
    while (Test(id, position) < 0) --position;
    return Test(id, position) == 1;
  }
  bool Append(unsigned int id) {
    if (!CanAppend(id)) return false;
    entries.push_back(id);
    frequencySeen = frequencySeen || id == Frequency;
    return true;
  }
  SlowSequence First(int n) const {
    SlowSequence head{addedMass, frequencySeen, Ids(entries.begin(), entries.begin() + n)};
    if (n < Length()) head.frequencySeen = frequencySeen && Has(head.entries, ComplexFrequency);
    return head;
  }
  /// Whether all entries behind the index still fit with others in its place.
  bool RestFits(int index, Ids inPlace) const {
    SlowSequence trial = First(index);
    inPlace.insert(inPlace.end(), entries.begin() + index + 1, entries.end());
    return std::all_of(inPlace.begin(), inPlace.end(), [&](unsigned int id) { return trial.Append(id); });
  }
  bool IsRemovable(int index) const {
    return index + 1 == Length() || Entry(index) == suppressed || RestFits(index, {});
  }
  bool IsSuppressable(int index) const { return Entry(index) == suppressed || RestFits(index, {suppressed}); }
  bool IsResumable(int index, unsigned int id) const { return Entry(index) != suppressed || RestFits(index, {id}); }
  void Remove(int index) {
    entries.erase(entries.begin() + index);
    frequencySeen = Has(entries, Frequency);
  }
};

struct Planned {
  unsigned int id;
  bool suppress;
  unsigned int Entry() const { return suppress ? suppressed : id; }
};
using Plan = std::vector<Planned>;

/// Nothing if an entry does not fit.
std::optional<SlowSequence> SequenceOf(Ids const& entries, bool addedMass) {
  SlowSequence sequence{.addedMass = addedMass};
  for (unsigned int const entry : entries) {
    if (!sequence.Append(entry)) return {};
  }
  return sequence;
}

Ids Entries(Plan const& plan) {
  Ids entries;
  for (Planned const& step : plan) entries.push_back(step.Entry());
  return entries;
}

cow_String NameOf(int index) {
  return index < 0 ? kprC_Step::initialCmd() : cow_String("Step-" + std::to_string(index));
}

/// The initial step and those of the plan, whether they fit or not.
kprC_StepContainer Model(Plan const& plan) {
  kprC_StepContainer model;
  model.SetInitialStep(kprC_Step::initialCmd(), kprC_InitialStep());
  for (Planned const& planned : plan) {
    PlannedStep step(planned.id);
    step.suppress = planned.suppress;
    model.InsertAfter(model.LastStep(), NameOf(model.Size() - 1), step, true);
  }
  return model;
}

class SequenceWalkTest : public testing::Test {
 protected:
  int Any(int n) { return static_cast<int>(random_() % static_cast<unsigned int>(n)); }
  unsigned int AnyProcedure() { return kprC_ProcedureRows[Any(static_cast<int>(std::size(kprC_ProcedureRows)))].id; }

  static constexpr unsigned int usual[] = {Static, Frequency, ModalDynamics, ComplexFrequency, ImplicitDynamics};

  /// A plan most of whose steps fit behind the ones before.
  Plan AnyPlan(int length, bool addedMass) {
    SlowSequence sequence{.addedMass = addedMass};
    Plan plan;
    while (static_cast<int>(plan.size()) < length) {
      Planned const step{Any(3) == 0 ? usual[Any(5)] : AnyProcedure(), Any(5) == 0};
      if (!sequence.Append(step.Entry()) && Any(400) != 0) continue;
      plan.push_back(step);
      if (sequence.entries.size() < plan.size()) sequence.entries.push_back(step.Entry());
    }
    return plan;
  }

  /// The edit ends in the sequence that the slow one ends in, or is refused where that is none.
  template <class Edit>
  void ExpectAfter(Ids const& entries, bool addedMass, kprC_StepSequencer sequencer, Edit edit) {
    auto const slow = SequenceOf(entries, addedMass);
    ASSERT_EQ(Refusal([&] { edit(sequencer); }), slow ? "passes" : "Invalid sequence of steps");
    (slow ? accepted_ : refused_) += 1;
    if (slow) ExpectSameAppendable(sequencer, *slow);
  }

  static void ExpectSameAppendable(kprC_StepSequencer const& sequencer, SlowSequence const& slow) {
    int appendable = 0;
    for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
      bool const fits = slow.CanAppend(row.id);
      ASSERT_EQ(sequencer.IsAppendable(row.id), fits) << row.label;
      appendable += fits ? 1 : 0;
    }
    // A suppressed entry may stand in the list as well.
    ASSERT_EQ(sequencer.Appendable().Length(), appendable + (sequencer.Appendable().IsMember(suppressed) ? 1 : 0));
    ASSERT_EQ(sequencer.AppendableGeneral().Length() + sequencer.AppendablePerturbation().Length(), appendable);
    ASSERT_TRUE(sequencer.IsAppendable(suppressed));
  }

  void ExpectSameAnswers(kprC_StepSequencer const& sequencer, SlowSequence const& slow) {
    ExpectSameAppendable(sequencer, slow);
    for (int i = atEnd; i <= slow.Length() + 1; ++i) {
      for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
        ASSERT_EQ(sequencer.TestAppendable(row.id, i), slow.Test(row.id, i)) << row.label << " at " << i;
      }
    }
    for (int i = 0; i < slow.Length(); ++i) {
      ExpectSameAppendable(kprC_StepSequencer(sequencer, i), slow.First(i));
      ASSERT_EQ(sequencer.IsRemovable(i), slow.IsRemovable(i)) << i;
      ASSERT_EQ(sequencer.IsSuppressable(i), slow.IsSuppressable(i)) << i;
      for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
        ASSERT_EQ(sequencer.IsResumable(i, row.id), slow.IsResumable(i, row.id)) << row.label << " at " << i;
      }
      kprC_StepSequencer shorter = sequencer;
      bool const removable = slow.IsRemovable(i);
      ASSERT_EQ(Refusal([&] { shorter.Remove(i); }), removable ? "passes" : "Invalid sequence of steps") << i;
      if (!removable) continue;
      SlowSequence rest = slow;
      rest.Remove(i);
      // What was known before a suppressed entry went may be out of date; that is a test of its own.
      shorter.ClearAppendableCache();
      ExpectSameAppendable(shorter, rest);
    }
  }

  std::mt19937 random_{17};
  int accepted_ = 0;
  int refused_ = 0;
};

TEST_F(SequenceWalkTest, AnswersEveryQuestionAsTheSlowReadingDoes) {
  int whole = 0;
  int withFrequency = 0;
  for (int run = 0; run < 300; ++run) {
    SCOPED_TRACE(run);
    bool const addedMass = run % 2 == 0;
    int const length = 1 + Any(12);
    Plan const plan = AnyPlan(length, addedMass);
    Ids const entries = Entries(plan);
    kprC_StepContainer const model = Model(plan);
    kprC_StepSequencer sequencer(model, addedMass);
    ExpectAfter(entries, addedMass, sequencer, [](kprC_StepSequencer& asked) { asked.Run(); });
    if (auto const slow = SequenceOf(entries, addedMass)) {
      sequencer.Run();
      ExpectSameAnswers(sequencer, *slow);
      whole += length == 12 ? 1 : 0;
      withFrequency += slow->frequencySeen ? 1 : 0;
    }
    for (int i = atEnd; i < length; ++i) {
      auto const upTo = [&](int end) { return Ids(entries.begin(), entries.begin() + end); };
      for (bool const before : {true, false}) {
        int const end = i < 0 || before ? std::max(i, 0) : i + 1;
        ExpectAfter(upTo(end), addedMass, sequencer, [&](kprC_StepSequencer& asked) { asked.Run(NameOf(i), before); });
      }
      unsigned int const id = AnyProcedure();
      Ids edited = entries;
      bool const behindSuppressed = i >= 0 && plan[static_cast<std::size_t>(i)].suppress;
      edited.insert(edited.begin() + i + 1, behindSuppressed ? suppressed : id);
      ExpectAfter(edited, addedMass, sequencer, [&](kprC_StepSequencer& asked) { asked.InsertAfter(NameOf(i), id); });
      if (i < 0) continue;
      edited = entries;
      edited[static_cast<std::size_t>(i)] = id;
      ExpectAfter(edited, addedMass, sequencer, [&](kprC_StepSequencer& asked) { asked.Replace(NameOf(i), id); });
    }
  }
  EXPECT_GT(whole, 10);
  EXPECT_GT(withFrequency, 50);
  EXPECT_GT(accepted_, 1000);
  EXPECT_GT(refused_, 1000);
}

TEST_F(SequenceWalkTest, AThousandStepsStayRightThroughEveryEdit) {
  // Each general step has nine perturbations behind it, which pass every question on to it.
  Ids const general{Static, Visco, Soils};
  Ids const perturbations{Frequency, ModalDynamics, StaticLinearPerturbation, SteadyStateModal, ComplexFrequency};
  Plan plan;
  for (int i = 0; i < 1000; ++i) {
    int const inBlock = i % 10;
    auto const choice = static_cast<std::size_t>(inBlock == 0 ? Any(3) : inBlock == 1 ? 0 : Any(5));
    plan.push_back({inBlock == 0 ? general[choice] : perturbations[choice], false});
  }
  std::vector<int> order(plan.size());
  std::iota(order.begin(), order.end(), 0);
  auto const entriesInOrder = [&] {
    Ids entries;
    for (int const step : order) entries.push_back(plan[static_cast<std::size_t>(step)].Entry());
    return entries;
  };
  kprC_StepContainer model = Model(plan);
  kprC_StepContainer const before = model;
  std::set<int> edited;
  auto const expectSameVerdict = [&] {
    bool const fits = SequenceOf(entriesInOrder(), false).has_value();
    (fits ? accepted_ : refused_) += 1;
    ASSERT_EQ(Refusal([&] { kprC_StepSequencer(model, false).Run(); }), fits ? "passes" : "Invalid sequence of steps");
  };
  expectSameVerdict();

  // The first steps of a block carry those behind them, so about every third edit is not possible.
  // Steps are suppressed where that is answered to be possible, then resumed in another order.
  for (bool const suppress : {true, false}) {
    std::vector<int> steps;
    for (int i = 0; i < 1000; ++i) {
      if (i % 10 < 3 && plan[static_cast<std::size_t>(i)].suppress != suppress) steps.push_back(i);
    }
    std::shuffle(steps.begin(), steps.end(), random_);
    steps.resize(std::min<std::size_t>(steps.size(), 60));
    for (int const i : steps) {
      Planned& step = plan[static_cast<std::size_t>(i)];
      auto const slow = SequenceOf(entriesInOrder(), false);
      ASSERT_TRUE(slow.has_value());
      kprC_StepSequencer sequencer(model, false);
      sequencer.Run();
      bool const possible = suppress ? slow->IsSuppressable(i) : slow->IsResumable(i, step.id);
      ASSERT_EQ(suppress ? sequencer.IsSuppressable(i) : sequencer.IsResumable(i, step.id), possible) << i;
      ASSERT_EQ(sequencer.IsRemovable(i), slow->IsRemovable(i)) << i;
      (possible ? accepted_ : refused_) += 1;
      if (!possible) continue;
      step.suppress = suppress;
      edited.insert(i);
      kprC_Step& held = model.Get(NameOf(i));
      suppress ? held.Suppress() : held.Resume();
    }
  }

  // A move is put in behind another step; one that breaks the order is taken back.
  for (int move = 0; move < 60; ++move) {
    int const step = 10 * Any(100) + Any(3);
    int const after = Any(1000);
    if (step == after) continue;
    std::vector<int> const lastOrder = order;
    kprC_StepContainer const last = model;
    order.erase(std::find(order.begin(), order.end(), step));
    order.insert(std::find(order.begin(), order.end(), after) + 1, step);
    model.InsertAfter(NameOf(after), NameOf(step), static_cast<PlannedStep const&>(model.ConstGet(NameOf(step))), true);
    expectSameVerdict();
    if (SequenceOf(entriesInOrder(), false)) {
      edited.insert(step);
    } else {
      order = lastOrder;
      model = last;
    }
  }
  cow_List<cow_String> names{kprC_Step::initialCmd()};
  for (int const step : order) names.Append(NameOf(step));
  EXPECT_EQ(model.Keys(), names);
  for (int i = 0; i < 1000; ++i) {
    bool const shared = &model.ConstGet(NameOf(i)) == &before.ConstGet(NameOf(i));
    EXPECT_EQ(shared, !edited.contains(i)) << "neither an edit nor a question copies the other steps";
  }
  EXPECT_GT(accepted_, 60);
  EXPECT_GT(refused_, 20);
  EXPECT_LT(edited.size(), 200u);
}

}  // namespace
