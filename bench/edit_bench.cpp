// What does an edit cost that is carried to every step, and a change of the steps that is carried to every object?

#include "BenchModel.h"

namespace {

// ---- one edit of a boundary condition over 100 steps, beside a deep copy of its states

void BM_Edit(benchmark::State& state) {
  BoundaryConditions conditions = ModelOf(1, StepsOf(static_cast<int>(state.range(0))));
  kbcC_BC& condition = conditions.Get("BC-0");
  kbcC_DisplacementBCState edit;
  double value = 0.0;
  for (auto _ : state) {
    edit.u1 = value += 1.0;
    condition.Insert("Step-1", edit);
  }
}
BENCHMARK(BM_Edit)->Name("goal/edit_100_steps/ours")->Arg(100)->Repetitions(9);
BENCHMARK(BM_Edit)->Name("goal/edit_steps/ours")->RangeMultiplier(4)->Range(8, 2048);

void BM_CopyStates(benchmark::State& state) {
  int const steps = static_cast<int>(state.range(0));
  BoundaryConditions const conditions = ModelOf(1, StepsOf(steps));
  kbcC_BC const& condition = conditions.ConstGet("BC-0");
  for (auto _ : state) {
    std::vector<std::unique_ptr<kbcC_BCState>> copies;
    copies.reserve(static_cast<std::size_t>(steps));
    for (kbcC_BC::Quad const& quad : condition.States()) {
      if (quad.state.HasValue()) {
        copies.emplace_back(quad.state.ConstGet().Copy());
      }
    }
    benchmark::DoNotOptimize(copies);
  }
}
BENCHMARK(BM_CopyStates)->Name("goal/edit_100_steps/baseline")->Arg(100)->Repetitions(9);

// ---- a step inserted under many objects, beside a deep copy of the repository

void InsertStep(benchmark::State& state, int objects, int stepCount) {
  kprC_StepList const before = StepsOf(stepCount);
  kprC_StepList const after = WithStepInserted(before);
  BoundaryConditions const conditions = ModelOf(objects, before);
  for (auto _ : state) {
    state.PauseTiming();
    std::unique_ptr<BoundaryConditions> edited(conditions.DeepCopy());
    state.ResumeTiming();
    edited->UpdateSteps(after, cow_String(), false);
    state.PauseTiming();
    edited.reset();
    state.ResumeTiming();
  }
}

void BM_InsertStepUnderObjects(benchmark::State& state) { InsertStep(state, static_cast<int>(state.range(0)), 50); }
void BM_InsertStepAmongSteps(benchmark::State& state) { InsertStep(state, 1000, static_cast<int>(state.range(0))); }
BENCHMARK(BM_InsertStepUnderObjects)->Name("goal/insert_step_10000/ours")->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_InsertStepUnderObjects)
    ->Name("goal/insert_step_objects/ours")
    ->RangeMultiplier(4)
    ->Range(160, 10'240)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_InsertStepAmongSteps)
    ->Name("goal/insert_step_steps/ours")
    ->RangeMultiplier(2)
    ->Range(16, 256)
    ->Unit(benchmark::kMillisecond);

void BM_CopyDeeply(benchmark::State& state) {
  BoundaryConditions const conditions = ModelOf(static_cast<int>(state.range(0)), StepsOf(50));
  for (auto _ : state) {
    std::unique_ptr<BoundaryConditions> copy(conditions.DeepCopy());
    state.PauseTiming();
    copy.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_CopyDeeply)->Name("goal/insert_step_10000/baseline")->Arg(10'000)->Unit(benchmark::kMillisecond);

// ---- each change of the steps under loads and boundary conditions together, beside a deep copy of both

constexpr int mixedObjects = 10'000;
constexpr int mixedSteps = 50;

/// What a change makes of the steps, the step that it suppresses, and the steps that it begins with.
struct StepChange {
  kprC_StepList before = StepsOf(mixedSteps);
  kprC_StepList after = before;
  cow_String suppressed;
};

StepChange Insertion() {
  StepChange change;
  change.after = WithStepInserted(change.before);
  return change;
}
StepChange Removal() {
  StepChange change;
  change.after.RemoveIndex(mixedSteps / 2);
  return change;
}
/// A step becomes one in which a perturbation works on what the steps before it have built up.
StepChange Replacement() {
  StepChange change;
  change.after.Get(mixedSteps / 2).procedure = kprC_StepHolder(new kprC_FrequencyStep());
  return change;
}
StepChange Suppression() {
  StepChange change;
  kprC_StepNameProcedurePair& step = change.after.Get(mixedSteps / 2);
  step.procedure.Get().suppress = true;
  change.suppressed = step.stepName;
  return change;
}

void ChangeSteps(benchmark::State& state, StepChange const& change) {
  MixedModel const model(mixedObjects, change.before);
  for (auto _ : state) {
    state.PauseTiming();
    std::unique_ptr<MixedModel> edited = model.DeepCopy();
    state.ResumeTiming();
    edited->UpdateSteps(change.after, change.suppressed, true);
    state.PauseTiming();
    edited.reset();
    state.ResumeTiming();
  }
}

void CopyMixed(benchmark::State& state) {
  MixedModel const model(mixedObjects, StepsOf(mixedSteps));
  for (auto _ : state) {
    std::unique_ptr<MixedModel> copy = model.DeepCopy();
    state.PauseTiming();
    copy.reset();
    state.ResumeTiming();
  }
}

void BM_MixedInsert(benchmark::State& state) { ChangeSteps(state, Insertion()); }
void BM_MixedRemove(benchmark::State& state) { ChangeSteps(state, Removal()); }
void BM_MixedReplace(benchmark::State& state) { ChangeSteps(state, Replacement()); }
void BM_MixedSuppress(benchmark::State& state) { ChangeSteps(state, Suppression()); }
BENCHMARK(BM_MixedInsert)->Name("goal/mixed_insert/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedRemove)->Name("goal/mixed_remove/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedReplace)->Name("goal/mixed_replace/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MixedSuppress)->Name("goal/mixed_suppress/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(CopyMixed)->Name("goal/mixed_insert/baseline")->Unit(benchmark::kMillisecond);
BENCHMARK(CopyMixed)->Name("goal/mixed_remove/baseline")->Unit(benchmark::kMillisecond);
BENCHMARK(CopyMixed)->Name("goal/mixed_replace/baseline")->Unit(benchmark::kMillisecond);
BENCHMARK(CopyMixed)->Name("goal/mixed_suppress/baseline")->Unit(benchmark::kMillisecond);

// ---- a copy for undo

void BM_CopyForUndo(benchmark::State& state) {
  BoundaryConditions const conditions = ModelOf(static_cast<int>(state.range(0)), StepsOf(50));
  for (auto _ : state) {
    BoundaryConditions copy(conditions);
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(BM_CopyForUndo)->Name("goal/repository_copy/ours")->RangeMultiplier(10)->Range(10, 10'000);

}  // namespace
