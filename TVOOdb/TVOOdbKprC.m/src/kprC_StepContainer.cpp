#include "kprC_StepContainer.h"

#include <set>
#include <utility>

#include "kprC_FlowStep.h"
#include "kprC_StepSequencer.h"
#include "kprC_assert.h"
#include "omu_Histories.h"

template class mdl_IdRepositoryOfCows<cow_String, kprC_Step>;

namespace {

/// The steps by names, as Dump() writes them. The record is no class of the model and is in no database by itself, so
/// it goes as the generic map that it is for the most part.
class StepDump final : public cls_Persistent {
 public:
  static constexpr unsigned int TypeId() noexcept { return cls_GenericMapId; }
  static cls_AttributeTable const& Attributes() {
    static auto const table = cls_Describe<StepDump>("kprC_StepContainerDump", 831)
                                  .Attribute("steps", &StepDump::steps)
                                  .Attribute("stepsorder", &StepDump::order);
    return table;
  }
  CLS_CONCRETE_OPERATIONS(StepDump)

 public:
  StepDump() = default;

  mdl_CowsByName<kprC_Step> steps;
  cls_xpListString order;
};

/// Stands in for the user's command, so that what happens meanwhile is not undone with that.
class PlaceholderCommand {
 public:
  PlaceholderCommand() { omu_CmdHistory::Instance().Add("DUMMY"); }
  ~PlaceholderCommand() { omu_CmdHistory::Instance().RemoveLast(true); }
  PlaceholderCommand(PlaceholderCommand const&) = delete;
  PlaceholderCommand& operator=(PlaceholderCommand const&) = delete;
};

void NoteInsertion(cow_String const& name, cow_List<cow_String> const& order) {
  cow_List<cow_String> const& commands = omu_CmdHistory::Instance().GetHistory();
  // A command that begins with the word is the session's own and is not undone; elsewhere in it the word means nothing.
  if (commands.IsEmpty() || commands.Last().Find("session", 0) == 0) return;
  omu_ChangeHistory::Instance().addChange(
      commands.Last() + "." + name,
      omu_PrimTuple{omu_Prim(cow_String("Insert")), omu_ReturnPrim(name), omu_ReturnPrim(order.FindMember(name))});
}

}  // namespace

cls_AttributeTable const& kprC_StepContainer::Attributes() {
  using Member = cls_MemberAttribute<kprC_StepContainer, cls_xpListString>;
  /// The order goes with the steps: it is not typed, and a row in which the two disagree is damaged.
  class Order final : public Member {
   public:
    using Member::Member;
    void Read(cls_Persistent& object, cls_ReadVisitor const& reader) const override {
      Member::Read(object, reader);
      if (!static_cast<kprC_StepContainer const&>(object).OrderIsSound()) {
        reader.Refuse("the order does not name each step once");
      }
    }
    bool SetText(cls_Persistent&, std::string_view) const override { return false; }
    char const* Expected() const override { return "no text: steps are inserted one after another"; }
  };
  class Table final : public cls_Describe<kprC_StepContainer, Base> {
   public:
    Table() : cls_Describe("kprC_StepContainer", 831) {
      Add(std::make_unique<Order>(cls_FieldHandle{0, "order"}, &kprC_StepContainer::order_));
    }
  };
  static Table const table;
  return table;
}

bool kprC_StepContainer::OrderIsSound() const {
  std::set<unsigned int> ids;
  for (cow_String const& name : order_) {
    unsigned int const* const id = nameToID_.Find(name);
    if (id == nullptr || !IsMember(*id) || !ids.insert(*id).second) return false;
  }
  return order_.Length() == Size() && order_.Length() == nameToID_.Size();
}

kprC_StepContainer* kprC_StepContainer::DeepCopy() const {
  cls_DeepCopyContext context;
  return cls_DeepCopyOf(*this, context);
}

cow_List<cow_String> kprC_StepContainer::UnsuppressedKeys() const {
  cow_List<cow_String> names;
  for (cow_String const& name : order_) {
    if (!ConstGet(name).suppress) names.Append(name);
  }
  return names;
}

kprC_StepList kprC_StepContainer::StepList() const {
  kprC_StepList list;
  for (cow_String const& name : order_) {
    list.Append(kprC_StepNameProcedurePair(name, list.IsEmpty() ? Holder() : Held(name)));
  }
  return list;
}

bool kprC_StepContainer::Insert(cow_String const&, kprC_Step const&) {
  nex_AssertText("\"Can only insert after into step containers\"==0", __FILE__, __LINE__);
}

bool kprC_StepContainer::Insert(cow_String const& name, kprC_Step* step) {
  Holder const owned(step);
  return Insert(name, owned.ConstGet());
}

void kprC_StepContainer::SetInitialStep(cow_String const& name, kprC_InitialStep const& step) {
  EnterInitial(name, Holder(step));
}

void kprC_StepContainer::EnterInitial(cow_String const& name, Holder const& step) {
  kprC_Assert(order_.IsEmpty(), 85);
  order_.Append(name);
  Put(name, step);
  kprC_StepSequencer(*this, false).Run();
}

bool kprC_StepContainer::InsertAfter(cow_String const& after, cow_String const& name, kprC_AnalysisStep const& step,
                                     bool loading) {
  bool const taken = EnterAfter(after, name, Holder(step));
  if (!loading) kprC_StepSequencer(*this, false).Run();
  if (taken) NoteInsertion(name, order_);
  return taken;
}

bool kprC_StepContainer::EnterAfter(cow_String const& after, cow_String const& name, Holder const& step) {
  kprC_Assert(IsMember(after) && after != name, 84);
  // The first name is the initial step's, always.
  kprC_Assert(name != order_.First(), 148);
  if (Base::Remove(name)) order_.RemoveMember(name);
  bool taken = false;
  if (after == order_.Last()) {
    order_.Append(name);
    taken = Put(name, step);
  } else {
    order_.InsertIndex(order_.FindMember(after) + 1, name);
    taken = Put(name, step);
    // In the middle the map of names counts as a new one.
    nameToID_.NewUid();
  }
  if (Size() != order_.Length()) {
    nex_AssertText("\"Step insertion failure.  Map and list sizes differ.\"==0", __FILE__, __LINE__);
  }
  return taken;
}

bool kprC_StepContainer::Remove(cow_String const& name) {
  if (!Base::Remove(name)) return false;
  order_.RemoveMember(name);
  kprC_StepSequencer(*this, true).Run();
  return true;
}

void kprC_StepContainer::ChangeKey(cow_String const& oldName, cow_String const& newName) {
  kprC_Assert(IsMember(oldName), 84);
  if (oldName == newName) return;
  kprC_Assert(oldName != order_.First() && newName != order_.First(), 148);
  if (Base::Remove(newName)) order_.RemoveMember(newName);
  order_.Put(order_.FindMember(oldName), newName);
  unsigned int const id = GetID(oldName);
  nameToID_.Insert(newName, id);
  nameToID_.Remove(oldName);
  MoveMeshDomain(id, oldName, newName);
}

/// The adaptive mesh domain that the step keeps under its own name follows the name.
void kprC_StepContainer::MoveMeshDomain(unsigned int id, cow_String const& oldName, cow_String const& newName) {
  auto const* const analysis = dynamic_cast<kprC_AnalysisStep const*>(&ConstGet(id));
  if (analysis == nullptr || !analysis->amd.IsMember(oldName)) return;
  PlaceholderCommand const notForUndo;
  auto& domains = static_cast<kprC_AnalysisStep&>(Get(id)).amd;
  domains.Insert(newName, domains.ConstGet(oldName).ConstGet());
  domains.Remove(oldName);
}

bool kprC_StepContainer::Rename(cow_String const& oldName, cow_String const& newName) {
  if (!IsMember(oldName) || IsMember(newName)) return false;
  ChangeKey(oldName, newName);
  return true;
}

void kprC_StepContainer::Clear() {
  order_.Clear();
  Base::Clear();
}

kprC_StepContainer* kprC_StepContainer::Load(cls_ReadVisitor const& reader) {
  StepDump const dump(reader);
  auto container = std::make_unique<kprC_StepContainer>();
  for (cow_String const& name : dump.order) {
    Holder const* const step = dump.steps.Find(name);
    kprC_Assert(step != nullptr, 84);
    bool const first = container->IsEmpty();
    kprC_Assert(first ? dynamic_cast<kprC_InitialStep const*>(step->GetPtr()) != nullptr
                      : dynamic_cast<kprC_AnalysisStep const*>(step->GetPtr()) != nullptr,
                49);
    if (first) {
      container->EnterInitial(name, *step);
    } else {
      container->EnterAfter(container->LastStep(), name, *step);
    }
  }
  return container.release();
}

void kprC_StepContainer::Dump(kprC_StepContainer const& container, cls_WriteVisitor const& writer) {
  StepDump dump;
  dump.order = container.order_;
  for (cow_String const& name : container.order_) dump.steps.Insert(name, container.Held(name));
  dump.DBWrite(writer);
}

bool kprC_StepContainer::HasLoadCase(cow_String const& name) const {
  auto const* const analysis = dynamic_cast<kprC_AnalysisStep const*>(&ConstGet(name));
  return analysis != nullptr && !analysis->lcc.IsEmpty();
}

/// Calls `visit(name, step)` for each analysis step that is not suppressed, until it answers false.
template <class Visit>
void kprC_StepContainer::VisitActiveSteps(Visit visit) const {
  bool initial = true;
  for (cow_String const& name : order_) {
    if (std::exchange(initial, false)) continue;
    kprC_Step const& step = ConstGet(name);
    if (!step.suppress && !visit(name, step)) return;
  }
}

bool kprC_StepContainer::Nlgeom(cow_String const& stepName) const {
  kprC_AnalysisProductEnm const product = AnalysisProduct();
  if (product == UNDEFINED_ANALYSIS) return false;
  bool on = product == EXPLICIT_ANALYSIS;
  if (stepName == order_.First()) return on;

  bool first = true;
  VisitActiveSteps([&](cow_String const& name, kprC_Step const& step) {
    bool const there = name == stepName;
    switch (step.Nlgeom()) {
      case kprC_Step::ON:
        on = true;
        break;
      case kprC_Step::OFF:
        on = on && !first;
        break;
      case kprC_Step::NOT_AVAILABLE:
        break;
      case kprC_Step::ALWAYS_OFF:
        on = on && !there;
        break;
      default:
        nex_AssertText("\"Unknown nlgeom value\" == 0", __FILE__, __LINE__);
    }
    first = false;
    return !there;
  });
  return on;
}

/// The first value of the field that is not 0 among the flow steps at the head of the analysis.
template <class Setting>
Setting kprC_StepContainer::FlowSetting(Setting kprC_FlowStep::*field) const {
  Setting setting{};
  VisitActiveSteps([&](cow_String const&, kprC_Step const& step) {
    if (!step.Flow()) return false;
    if (auto const* const flow = dynamic_cast<kprC_FlowStep const*>(&step)) setting = flow->*field;
    return setting == Setting{};
  });
  return setting;
}

kprC_EnergyEquationEnm kprC_StepContainer::EnergyEquation() const {
  return FlowSetting(&kprC_FlowStep::energyEquation);
}

kprC_TurbulenceModelEnm kprC_StepContainer::TurbulenceModel() const {
  return FlowSetting(&kprC_FlowStep::turbulenceModel);
}

kprC_AnalysisProductEnm kprC_StepContainer::AnalysisProduct() const {
  kprC_AnalysisProductEnm product = UNDEFINED_ANALYSIS;
  VisitActiveSteps([&](cow_String const&, kprC_Step const& step) {
    product = step.Explicit() ? EXPLICIT_ANALYSIS : step.Flow() ? CFD_ANALYSIS : STANDARD_ANALYSIS;
    return false;
  });
  return product;
}

void kprC_StepContainer::AssertValid() const {
  VisitActiveSteps([](cow_String const&, kprC_Step const& step) {
    kprC_Assert(dynamic_cast<kprC_AnalysisStep const*>(&step) != nullptr, 49);
    step.AssertValid();
    return true;
  });
  kprC_StepSequencer(*this, false).Run();
}
