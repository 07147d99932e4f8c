#pragma once

#include <benchmark/benchmark.h>

#include <string>

#include "TVOOdbAttrEO.h"
#include "kbcC_DisplacementBC.h"
#include "kloC_ConcentratedForce.h"
#include "kprC_FrequencyStep.h"
#include "kprC_StaticStep.h"
#include "kprC_StepContainer.h"

// The model that the goals speak of, in any size.

using BoundaryConditions = kprC_PropagatingContainer<kbcC_BC>;
using Loads = kprC_PropagatingContainer<kloC_Load>;

/// The library is up while the program runs.
struct LibraryUp {
  LibraryUp() { TVOOdbAttrEO_initialize(depth); }
  int depth = 0;
};
inline LibraryUp const libraryUp;

/// The initial step and `count` general ones.
inline kprC_StepList StepsOf(int count) {
  kprC_StepList steps;
  steps.Append({kprC_Step::initialCmd(), kprC_StepHolder()});
  for (int i = 1; i <= count; ++i) {
    steps.Append({cow_String("Step-" + std::to_string(i)), kprC_StepHolder(new kprC_StaticStep())});
  }
  return steps;
}

/// The same list with one more step in the middle.
inline kprC_StepList WithStepInserted(kprC_StepList steps) {
  steps.InsertIndex(steps.Length() / 2, {"Inserted", kprC_StepHolder(new kprC_StaticStep())});
  return steps;
}

/// Displacement boundary conditions, each created in the first step with values of its own.
inline BoundaryConditions ModelOf(int objects, kprC_StepList const& steps) {
  BoundaryConditions conditions;
  conditions.UpdateSteps(steps, cow_String(), false);
  for (int i = 0; i < objects; ++i) {
    kbcC_DisplacementBCState state;
    state.u1 = 0.5 + i;
    state.u2 = -1.0 * i;
    kbcC_DisplacementBC condition;
    condition.region = rgnC_Region(cow_String("Set-" + std::to_string(i)));
    condition.Insert("Step-1", state);
    conditions.Insert(cow_String("BC-" + std::to_string(i)), condition);
  }
  return conditions;
}

/// Concentrated forces of the same kind.
inline Loads LoadsOf(int objects, kprC_StepList const& steps) {
  Loads loads;
  loads.UpdateSteps(steps, cow_String(), false);
  for (int i = 0; i < objects; ++i) {
    kloC_ConcentratedForceState state;
    state.c1 = 0.5 + i;
    state.c2 = -1.0 * i;
    kloC_ConcentratedForce force;
    force.region = rgnC_Region(cow_String("Set-" + std::to_string(i)));
    force.Insert("Step-1", state);
    loads.Insert(cow_String("Load-" + std::to_string(i)), force);
  }
  return loads;
}

/// Loads and boundary conditions in equal parts over the same steps.
struct MixedModel {
  MixedModel(int objects, kprC_StepList const& steps)
      : conditions(ModelOf(objects / 2, steps)), loads(LoadsOf(objects - objects / 2, steps)) {}
  MixedModel(BoundaryConditions const& c, Loads const& l) : conditions(c), loads(l) {}

  std::unique_ptr<MixedModel> DeepCopy() const {
    std::unique_ptr<BoundaryConditions> const c(conditions.DeepCopy());
    std::unique_ptr<Loads> const l(loads.DeepCopy());
    return std::make_unique<MixedModel>(*c, *l);
  }
  void UpdateSteps(kprC_StepList const& steps, cow_String const& changed, bool suppress) {
    conditions.UpdateSteps(steps, changed, suppress);
    loads.UpdateSteps(steps, changed, suppress);
  }

  BoundaryConditions conditions;
  Loads loads;
};
