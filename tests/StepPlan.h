#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "TVOOdbAttrEO.h"
#include "kprC_AnalysisStep.h"
#include "kprC_FrequencyStep.h"
#include "kprC_ModalDynamicsStep.h"
#include "kprC_StaticStep.h"
#include "kprC_StepList.h"
#include "kprC_StepRules.h"
#include "mdl_PropagatingAttribute.h"

// Lists of steps written in a line, and what else the tests of step-dependent objects share.

/// A step of any procedure.
class PlannedStep final : public kprC_AnalysisStep {
 public:
  explicit PlannedStep(unsigned int id) : procedureId(id) {}
  static constexpr unsigned int TypeId() { return kprC_Procedure::HeatTransfer; }
  static cls_AttributeTable const& Attributes() {
    static cls_Describe<PlannedStep, kprC_AnalysisStep> const table("PlannedStep", 203);
    return table;
  }
  unsigned int DynTypeId() const override { return procedureId; }
  cls_AttributeTable const& DynAttributes() const override { return Attributes(); }
  PlannedStep* Copy() const override { return new PlannedStep(*this); }

  unsigned int procedureId;
};

inline kprC_StepHolder StepOf(char procedure) {
  using namespace kprC_Procedure;
  switch (procedure) {
    case 'F': return kprC_StepHolder(new kprC_FrequencyStep());
    case 'M': return kprC_StepHolder(new kprC_ModalDynamicsStep());
    case 'H': return kprC_StepHolder(new PlannedStep(HeatTransfer));
    case 'N': return kprC_StepHolder(new PlannedStep(Anneal));
    case 'W': return kprC_StepHolder(new PlannedStep(Flow));
    case 'P': return kprC_StepHolder(new PlannedStep(StaticLinearPerturbation));
    case 'D': return kprC_StepHolder(new PlannedStep(SteadyStateDirect));
    case 'R': return kprC_StepHolder(new PlannedStep(RandomResponse));
    case 'S': return kprC_StepHolder(new PlannedStep(SteadyStateSubspace));
    case 'E': return kprC_StepHolder(new PlannedStep(ExplicitDynamics));
    case 'b': return kprC_StepHolder(new PlannedStep(Buckle));
    case 'c': return kprC_StepHolder(new PlannedStep(CoupledThermalElectrochemical));
    case 'd': return kprC_StepHolder(new PlannedStep(MassDiffusion));
    case 'h': return kprC_StepHolder(new PlannedStep(EmagTimeHarmonic));
    case 'u': return kprC_StepHolder(new PlannedStep(SubstructureGenerate));
    case 'T': return kprC_StepHolder(new PlannedStep(CoupledTempDisplacement));
    default: return kprC_StepHolder(new kprC_StaticStep());
  }
}

/// "A B:F C!" is the initial step and three more: B a frequency step, C a suppressed static one.
inline kprC_StepList Steps(std::string const& plan) {
  kprC_StepList steps;
  steps.Append({kprC_Step::initialCmd(), kprC_StepHolder()});
  std::istringstream words(plan);
  for (std::string word; words >> word;) {
    bool const suppressed = word.back() == '!';
    std::size_t const colon = word.find(':');
    kprC_StepHolder step = StepOf(colon == std::string::npos ? ' ' : word[colon + 1]);
    step.Get().suppress = suppressed;
    steps.Append({cow_String(word.substr(0, word.find_first_of(":!"))), step});
  }
  return steps;
}

/// The words of a refusal; "passes" if there is none.
template <class Action>
std::string Refusal(Action action) {
  try {
    action();
  } catch (std::exception const& refusal) {
    return refusal.what();
  }
  return "passes";
}

template <class Object>
std::vector<int> Statuses(Object const& object) {
  std::vector<int> statuses;
  for (auto const status : object.History()) statuses.push_back(status);
  return statuses;
}

/// "timePeriod=2 magnitude=3": sets attributes, and the values of those that propagate, as a script does.
inline void SetAttributes(cls_Persistent& object, std::string const& edits) {
  std::istringstream words(edits);
  for (std::string word; words >> word;) {
    std::size_t const equals = word.find('=');
    cls_Attribute const* const attribute = object.DynAttributes().Find(word.substr(0, equals));
    ASSERT_NE(attribute, nullptr) << object.DynAttributes().Name().CStr() << " has no " << word;
    auto* const value = dynamic_cast<mdl_PropAttrBase*>(attribute->Embedded(object));
    std::string const text = word.substr(equals + 1);
    ASSERT_TRUE(value != nullptr ? value->SetValueText(text) : attribute->SetText(object, text))
        << word << ", expected " << attribute->Expected();
  }
}

// What the tests of all families ask of their objects.
namespace over_steps {

constexpr char const* passes = "passes";

/// The words of a family's refusal; 0 stands for none.
template <class Object>
std::string WordsOf(int error) {
  return error == 0 ? passes : Refusal([error] { Object::FamilyRules::Assert(false, error); });
}

template <class Object>
using StateOf = std::remove_cvref_t<decltype(std::declval<Object const&>().ConstGetState(cow_String()))>;

// ---- objects made as a script does

template <class Object>
StateOf<Object> StateWith(std::string const& values) {
  StateOf<Object> state;
  SetAttributes(state, values);
  return state;
}

/// An object that a step creates, over no steps yet.
template <class Object>
Object Made(std::string const& attributes, std::string const& values, char const* step = "A") {
  Object object;
  SetAttributes(object, attributes);
  object.Insert(step, StateWith<Object>(values));
  return object;
}

/// An object and the number that refuses it; 0 if it passes.
struct Refused {
  int error;
  char const* attributes;
  char const* values;
  char const* plan = "A";
  char const* step = "A";
};

template <class Object>
void ExpectRefused(std::initializer_list<Refused> rows) {
  for (Refused const& row : rows) {
    Object object = Made<Object>(row.attributes, row.values, row.step);
    EXPECT_EQ(Refusal([&] { object.Initialize(Steps(row.plan)); }), WordsOf<Object>(row.error))
        << Object::Attributes().Name() << ": " << row.attributes << "; " << row.values << "; " << row.plan;
  }
}

// ---- objects whose states have a first component

template <class Object>
StateOf<Object> WithValue(double value) {
  StateOf<Object> state;
  state.*StateOf<Object>::Components()[0] = value;
  return state;
}

template <class Object>
Object Created(char const* step, std::string const& plan, double value = 0.5) {
  Object object;
  object.Insert(step, WithValue<Object>(value));
  object.Initialize(Steps(plan));
  return object;
}

/// What stands for the value of a step that holds none.
constexpr double none = -1.0;
template <class Object>
double ValueIn(Object const& object, char const* step) {
  auto const* const state = static_cast<StateOf<Object> const*>(object.StateIn(step));
  return state == nullptr ? none : (state->*StateOf<Object>::Components()[0]).ConstGet();
}

/// An edit and the statuses behind it.
template <class Object>
struct Event {
  char const* name;
  std::function<void(Object&)> edit;
  std::vector<int> history;
};

template <class Object>
void Follow(Object object, std::initializer_list<std::type_identity_t<Event<Object>>> events) {
  for (Event<Object> const& event : events) {
    event.edit(object);
    EXPECT_EQ(Statuses(object), event.history) << event.name;
  }
}

/// An edit behind another, and the number that refuses it; 0 if it passes.
template <class Object>
struct RefusedEdit {
  char const* name;
  char const* plan;
  std::function<void(Object&)> before;
  std::function<void(Object&)> edit;
  int error;
};

template <class Object>
void ExpectRefusedEdits(std::initializer_list<RefusedEdit<Object>> rows) {
  for (RefusedEdit<Object> const& row : rows) {
    Object object = Created<Object>("A", row.plan);
    row.before(object);
    EXPECT_EQ(Refusal([&] { row.edit(object); }), WordsOf<Object>(row.error)) << row.name;
  }
}

inline constexpr auto nothing = [](auto&) {};
/// No edit, but a look at values.
inline auto Has(std::vector<std::pair<char const*, double>> values) {
  return [values = std::move(values)](auto& object) {
    for (auto const& [step, value] : values) EXPECT_EQ(ValueIn(object, step), value) << step;
  };
}
inline auto Edited(char const* step, double value = 2.0) {
  return [=](auto& object) { object.Insert(step, WithValue<std::remove_cvref_t<decltype(object)>>(value)); };
}
inline auto Deactivated(char const* step) {
  return [step](auto& object) { object.Deactivate(step); };
}
inline auto Reset(char const* step) {
  return [step](auto& object) { object.Reset(step); };
}
inline auto Moved(char const* from, char const* to) {
  return [=](auto& object) { object.Move(from, to); };
}
inline auto Copied(char const* step) {
  return [step](auto& object) { object.CopiedToStep(step); };
}
inline auto InLoadCase(char const* step) {
  return [step](auto& object) { object.ValidInALoadCase(step, true); };
}
inline auto Replanned(char const* plan) {
  return [plan](auto& object) { object.Initialize(Steps(plan)); };
}
template <class First, class Second>
auto Both(First first, Second second) {
  return [=](auto& object) { first(object), second(object); };
}
inline constexpr auto SuppressByUser = [](auto& object) { object.Suppress(false, false); };

// ---- what a status means to a family

/// The statuses of which the predicates are true: active, propagated, built in, and the class-level ones modified, illegal
/// move, value computed. Those that are not known are refused with the number.
template <class Object>
void ExpectPredicates(Object const& object, std::set<int> const& known, int unknown,
                      std::vector<std::set<int>> const& yes) {
  std::vector<std::function<bool(mdl_PropagationStatusEnm)>> const predicates = {
      [&](auto status) { return object.IsActive(status); },    [&](auto status) { return object.IsPropagated(status); },
      [&](auto status) { return object.IsBuiltIn(status); },   [](auto status) { return Object::IsModified(status); },
      [](auto status) { return Object::IsIllegalMove(status); },
      [](auto status) { return Object::IsValueComputed(status); }};
  for (std::size_t i = 0; i < yes.size(); ++i) {
    for (int status = 0; status < 18; ++status) {
      bool answer = false;
      EXPECT_EQ(Refusal([&] { answer = predicates[i](static_cast<mdl_PropagationStatusEnm>(status)); }),
                WordsOf<Object>(known.contains(status) ? 0 : unknown))
          << i << " " << status;
      EXPECT_EQ(answer, yes[i].contains(status)) << i << " " << status;
    }
  }
}

/// The numbers by which a walk refuses, by kprC_PropErrorEnum and one beyond.
template <class Object>
void ExpectPropagatorErrors(Object const& object, std::vector<int> const& errors) {
  typename Object::FamilyRules::Propagator const propagator(object, object.States());
  for (std::size_t flag = 0; flag < errors.size(); ++flag) {
    EXPECT_EQ(Refusal([&] { propagator.ErrorHandler(static_cast<kprC_PropErrorEnum>(flag)); }),
              WordsOf<Object>(errors[flag]));
  }
}

}  // namespace over_steps

/// The library is up while the program's tests run: checked casts need its types.
class LibraryEnvironment : public ::testing::Environment {
 public:
  void SetUp() override { TVOOdbAttrEO_initialize(depth_); }
  void TearDown() override { TVOOdbAttrEO_finalize(depth_); }

 private:
  int depth_ = 0;
};
