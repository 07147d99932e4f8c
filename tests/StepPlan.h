#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "TVOOdbAttrEO.h"
#include "kprC_AnalysisStep.h"
#include "kprC_FrequencyStep.h"
#include "kprC_ModalDynamicsStep.h"
#include "kprC_StaticStep.h"
#include "kprC_StepList.h"

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

/// The library is up while the program's tests run: checked casts need its types.
class LibraryEnvironment : public ::testing::Environment {
 public:
  void SetUp() override { TVOOdbAttrEO_initialize(depth_); }
  void TearDown() override { TVOOdbAttrEO_finalize(depth_); }

 private:
  int depth_ = 0;
};
