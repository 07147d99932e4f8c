#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "TVOOdbAttrEO.h"
#include "kprC_LabelsBitMap.h"
#include "kprC_ModalDynamicsStep.h"
#include "kprC_StaticStep.h"
#include "kprC_StepSequencer.h"
#include "nex_Exception.h"
#include "omu_Histories.h"

namespace {

using namespace kprC_Procedure;
using Ids = cow_List<unsigned int>;
using Names = cow_List<cow_String>;
constexpr unsigned int suppressed = kprC_StepSequencer::suppressedEntry;

/// The words of a refusal, "" if there is none.
template <class Action>
std::string Refusal(Action action) {
  try {
    action();
  } catch (TVOBasException const& refusal) {
    return refusal.what();
  }
  return "";
}
std::string const noSuchStep = "There is no step by that name";
std::string const invalidSequence = "Invalid sequence of steps";

TEST(StepSequencerTest, KnowsWhatMayFollow) {
  struct Case {
    Ids entries;
    unsigned int next;
    bool fits, fitsWithAddedMass;
  };
  for (auto const& [entries, next, fits, fitsWithAddedMass] : std::initializer_list<Case>{
           {{Static}, ComplexFrequency, false, false},
           {{Static, Frequency, Buckle}, ComplexFrequency, true, true},
           {{Frequency, Static}, ComplexFrequency, true, true},
           {{Frequency, HeatTransfer, suppressed}, ComplexFrequency, true, true},
           {{Static, Frequency}, Visco, true, true},
           {{Buckle}, UsaAddedMassGeneration, false, true},
           {{Static}, 0, false, false}}) {
    EXPECT_EQ(kprC_StepSequencer(entries, false).IsAppendable(next), fits) << next;
    EXPECT_EQ(kprC_StepSequencer(entries, true).IsAppendable(next), fitsWithAddedMass) << next;
  }
  EXPECT_EQ(kprC_StepSequencer(false).Appendable().Length(), 25);
  EXPECT_EQ(kprC_StepSequencer(true).Appendable().Length(), 26);
  EXPECT_TRUE(kprC_StepSequencer(Ids{StaticRiks}, false).Appendable().IsEmpty());

  // Questions about what is no procedure do not make the list of all answers look complete.
  kprC_StepSequencer const asked(Ids{Static}, false);
  for (unsigned int const id : {suppressed, 0u, Visco}) asked.IsAppendable(id);
  Ids const found = asked.Appendable();
  EXPECT_EQ(found.Slice(0, 2), (Ids{suppressed, Visco}));
  EXPECT_EQ(found.Length(), 1 + kprC_StepSequencer(Ids{Static}, false).Appendable().Length());
  EXPECT_EQ(asked.AppendableGeneral().Length() + asked.AppendablePerturbation().Length(), found.Length() - 1);
}

TEST(StepSequencerTest, LetsEntriesGoOnlyIfTheRestFits) {
  kprC_StepSequencer modal(Ids{Static, Frequency, ModalDynamics}, false);
  EXPECT_FALSE(modal.IsRemovable(1) || modal.IsSuppressable(1));
  EXPECT_TRUE(modal.IsRemovable(0) && modal.IsRemovable(2) && modal.IsSuppressable(0));
  EXPECT_EQ(Refusal([&] { modal.Remove(1); }), invalidSequence);
  EXPECT_EQ(Refusal([&] { modal.IsRemovable(-1); }), "Invalid step index");
  EXPECT_EQ(Refusal([&] { modal.IsResumable(3, Static); }), "Invalid step index");
  kprC_StepSequencer twice(Ids{Frequency, Frequency, Static}, false);
  twice.Remove(0);
  EXPECT_TRUE(twice.IsAppendable(ComplexFrequency));
  twice.Remove(0);
  EXPECT_FALSE(twice.IsAppendable(ComplexFrequency));
  // A shortened copy goes by its complex frequency steps.
  kprC_StepSequencer const whole(Ids{Frequency, Static, ComplexFrequency, Static}, false);
  for (int n = 1; n < 6; ++n) EXPECT_EQ(kprC_StepSequencer(whole, n).IsAppendable(ComplexFrequency), n != 2) << n;
  // Answers are kept across suppressed entries, which count for nothing.
  kprC_StepSequencer heated(Ids{Frequency, HeatTransfer}, false);
  EXPECT_FALSE(heated.IsAppendable(ComplexFrequency));
  heated.Append(suppressed);
  EXPECT_FALSE(heated.IsAppendable(ComplexFrequency));
}

/// A step of any procedure.
class AnyStep final : public kprC_AnalysisStep {
 public:
  explicit AnyStep(unsigned int id, NlgeomEnm geometry = NOT_AVAILABLE) : procedure(id), nlgeom(geometry) {}
  static constexpr unsigned int TypeId() { return kprC_Procedure::Flow; }
  static cls_AttributeTable const& Attributes() {
    static cls_Describe<AnyStep, kprC_AnalysisStep> const table("AnyStep", 203);
    return table;
  }
  unsigned int DynTypeId() const override { return procedure; }
  cls_AttributeTable const& DynAttributes() const override { return Attributes(); }
  AnyStep* Copy() const override { return new AnyStep(*this); }
  NlgeomEnm Nlgeom() const override { return nlgeom; }

  unsigned int procedure;
  NlgeomEnm nlgeom;
};

/// A model of the initial step and `steps`, named "1", "2" and so on.
kprC_StepContainer Model(std::vector<AnyStep> const& steps) {
  kprC_StepContainer model;
  model.SetInitialStep("Initial", kprC_InitialStep());
  for (AnyStep const& step : steps) {
    model.InsertAfter(model.LastStep(), std::to_string(model.Size()), step, true);
  }
  return model;
}

TEST(StepSequencerTest, ReadsTheStepsOfAModel) {
  auto model = Model({AnyStep(Static), AnyStep(Frequency), AnyStep(Static)});
  model.Get("2").Suppress();
  kprC_StepSequencer sequencer(model, false);
  sequencer.Run();
  EXPECT_TRUE(sequencer.IsResumable(1, Frequency));
  EXPECT_FALSE(sequencer.IsAppendable(ComplexFrequency));
  sequencer.Replace("2", Frequency);
  EXPECT_TRUE(sequencer.IsAppendable(ComplexFrequency));
  EXPECT_EQ(Refusal([&] { sequencer.Replace("Initial", Static); }), "The Initial step cannot be replaced.");
  sequencer.InsertAfter("Initial", Frequency);
  EXPECT_TRUE(sequencer.IsAppendable(ComplexFrequency));
  EXPECT_EQ(Refusal([&] { sequencer.InsertAfter("1", ModalDynamics); }), invalidSequence);
  // Behind a suppressed step the new one counts as suppressed, whatever it is.
  EXPECT_EQ(Refusal([&] { sequencer.InsertAfter("2", ModalDynamics); }), "");
  sequencer.Run("Initial", false);
  EXPECT_EQ(Refusal([&] { sequencer.IsRemovable(0); }), "Invalid step index");
  sequencer.Run("2", true);
  EXPECT_EQ(Refusal([&] { sequencer.IsRemovable(1); }), "Invalid step index");
  sequencer.Run("2", false);
  EXPECT_TRUE(sequencer.IsRemovable(1));
}

TEST(StepContainerTest, KeepsOrderAndIdsThroughEdits) {
  auto model = Model({AnyStep(Static), AnyStep(Static)});
  unsigned int const first = model.GetID("1"), second = model.GetID("2");
  kprC_StepContainer const before = model;
  EXPECT_TRUE(model.InsertAfter("1", "middle", AnyStep(Visco), false));
  EXPECT_EQ(model.Keys(), (Names{"Initial", "1", "middle", "2"}));
  EXPECT_EQ(model.GetID("2"), second);
  EXPECT_TRUE(model.InsertAfter("2", "1", AnyStep(Visco), false));
  EXPECT_EQ(model.Keys(), (Names{"Initial", "middle", "2", "1"}));
  EXPECT_TRUE(!model.IsMember(first) && model.ConstGet("1").ProcedureType() == Visco);
  for (char const* const after : {"nobody", "1"}) {
    EXPECT_EQ(Refusal([&] { model.InsertAfter(after, "1", AnyStep(Static), false); }), noSuchStep);
  }
  auto const list = model.StepList();
  EXPECT_TRUE(list.Length() == 4 && list[0].procedure.IsNull() && list[3].procedure.Identical(model.Held("1")));

  // What breaks the rule is refused, but it stays.
  EXPECT_EQ(Refusal([&] { model.InsertAfter("1", "odd", AnyStep(Flow), false); }), invalidSequence);
  EXPECT_EQ(Refusal([&] { model.AssertValid(); }), invalidSequence);
  EXPECT_TRUE(model.Remove("odd") && !model.Remove("odd"));
  EXPECT_EQ(Refusal([&] { model.SetInitialStep("Initial", kprC_InitialStep()); }), "Initial step already exists");
  EXPECT_EQ(Refusal([&] { model.Insert("3", new AnyStep(Static)); }),
            "\"Can only insert after into step containers\"==0");
  // Only a removal lets added mass be generated.
  auto added = Model({AnyStep(ImplicitDynamics), AnyStep(UsaAddedMassGeneration), AnyStep(Static)});
  EXPECT_TRUE(added.Remove("3"));
  EXPECT_EQ(Refusal([&] { added.AssertValid(); }), invalidSequence);

  EXPECT_EQ(before.Keys(), (Names{"Initial", "1", "2"}));
  EXPECT_EQ(&model.ConstGet("2"), &before.ConstGet("2")) << "neither an edit nor a check copies the other steps";
}

TEST(StepContainerTest, RenamesWithTheMeshDomainOfTheStep) {
  struct Domain final : kadC_AdptMeshDomain {
    unsigned int DynTypeId() const override { return TypeId(); }
    cls_AttributeTable const& DynAttributes() const override { return Attributes(); }
    Domain* Copy() const override { return new Domain(*this); }
  };
  AnyStep step(Static);
  step.amd.Insert("1", Domain());
  auto model = Model({step, AnyStep(Static)});
  kprC_StepContainer const before = model;
  unsigned int const id = model.GetID("1");
  auto const has = [](kprC_StepContainer const& container, char const* name, char const* domain) {
    return dynamic_cast<kprC_AnalysisStep const&>(container.ConstGet(name)).amd.IsMember(domain);
  };
  model.ChangeKey("1", "first");
  EXPECT_EQ(model.Keys(), (Names{"Initial", "first", "2"}));
  EXPECT_TRUE(has(model, "first", "first") && !has(model, "first", "1") && has(before, "1", "1"));
  EXPECT_TRUE(omu_CmdHistory::Instance().GetHistory().IsEmpty());
  EXPECT_FALSE(model.Rename("first", "2") || model.Rename("nobody", "3"));
  model.ChangeKey("first", "2");
  EXPECT_EQ(model.Keys(), (Names{"Initial", "2"}));
  EXPECT_EQ(model.GetID("2"), id);
  EXPECT_EQ(Refusal([&] { model.ChangeKey("nobody", "3"); }), noSuchStep);
}

TEST(StepContainerTest, NotesInsertionsUnderTheLastCommand) {
  auto& commands = omu_CmdHistory::Instance();
  auto& changes = omu_ChangeHistory::Instance();
  auto model = Model({});
  changes.Clear();
  for (char const* const command : {"session.open", "mdb.models", "a.session"}) {
    commands.Add(command);
    model.InsertAfter("Initial", command, AnyStep(Static), false);
  }
  commands.Clear();
  ASSERT_EQ(changes.Changes().Length(), 2);
  EXPECT_EQ(changes.Changes()[0].path, "mdb.models.mdb.models");
  EXPECT_EQ(changes.Changes()[1].what, (omu_PrimTuple{cow_String("Insert"), cow_String("a.session"), 1}));
  changes.Clear();
}

TEST(StepContainerTest, FollowsGeometricNonlinearity) {
  constexpr auto off = kprC_Step::OFF, on = kprC_Step::ON;
  constexpr auto none = kprC_Step::NOT_AVAILABLE, never = kprC_Step::ALWAYS_OFF;
  struct Case {
    unsigned int product;
    std::vector<kprC_Step::NlgeomEnm> steps;
    unsigned int suppressedSteps;  // by bits
    std::vector<bool> answers;     // of the initial step and the others
  };
  for (auto const& [product, nlgeoms, suppressedSteps, answers] : std::initializer_list<Case>{
           {ExplicitDynamics, {none, none}, 0, {true, true, true}},
           {ExplicitDynamics, {off, off}, 1, {true, false, false}},
           {Static, {off, on, off}, 0, {false, false, true, true}},
           {Static, {on, never, none}, 0, {false, true, false, true}},
           {Static, {off, off, on}, 2, {false, false, true, true}},
           {Static, {on, on}, 3, {false, false, false}}}) {
    std::vector<AnyStep> steps;
    for (auto const nlgeom : nlgeoms) {
      steps.emplace_back(product, nlgeom);
      if ((suppressedSteps >> (steps.size() - 1) & 1) != 0) steps.back().Suppress();
    }
    auto const model = Model(steps);
    std::vector<bool> found;
    for (cow_String const& name : model.Keys()) found.push_back(model.Nlgeom(name));
    EXPECT_EQ(found, answers) << testing::PrintToString(nlgeoms);
  }
}

TEST(StepContainerTest, ReadsBackWhatItDumped) {
  int depth = 0;
  TVOOdbAttrEO_initialize(depth);
  // A load does not ask whether the order is valid.
  auto model = Model({});
  kprC_StaticStep press;
  press.description = "press";
  model.InsertAfter("Initial", "press", press, false);
  model.InsertAfter("Initial", "modal", kprC_ModalDynamicsStep(), true);
  cls_Database database;
  cls_WriteSession writing(database);
  kprC_StepContainer::Dump(model, cls_WriteVisitor(writing));
  database.Complete();
  cls_ReadSession reading(database);
  auto const load = [&] {
    return std::unique_ptr<kprC_StepContainer>(kprC_StepContainer::Load(cls_ReadVisitor(reading)));
  };
  auto const loaded = load();
  EXPECT_EQ(loaded->Keys(), (Names{"Initial", "modal", "press"}));
  for (cow_String const& name : model.Keys()) {
    EXPECT_TRUE(cls_EqualValues(loaded->ConstGet(name), model.ConstGet(name))) << name;
  }
  EXPECT_EQ(Refusal([&] { kprC_StepSequencer(*loaded, false).Run(); }), invalidSequence);

  std::uint32_t* const order = &database.words[database.collections.back().first];
  std::swap(order[0], order[2]);
  EXPECT_EQ(Refusal(load), "Invalid step");
  order[0] = 0;
  EXPECT_EQ(Refusal(load), noSuchStep);
  TVOOdbAttrEO_finalize(depth);
}

}  // namespace
