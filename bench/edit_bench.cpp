// What does an edit cost that is carried to every step, and a change of the steps that is carried to every object?

#include "BenchModel.h"

namespace {

constexpr int steps = 100;

// ---- one edit of a boundary condition over 100 steps, beside a deep copy of its states

void BM_Edit(benchmark::State& state) {
  BoundaryConditions conditions = ModelOf(1, StepsOf(steps));
  kbcC_BC& condition = conditions.Get("BC-0");
  kbcC_DisplacementBCState edit;
  double value = 0.0;
  for (auto _ : state) {
    edit.u1 = value += 1.0;
    condition.Insert("Step-1", edit);
  }
}
BENCHMARK(BM_Edit)->Name("goal/edit_100_steps/ours");

void BM_CopyStates(benchmark::State& state) {
  BoundaryConditions const conditions = ModelOf(1, StepsOf(steps));
  kbcC_BC const& condition = conditions.ConstGet("BC-0");
  for (auto _ : state) {
    std::vector<std::unique_ptr<kbcC_BCState>> copies;
    copies.reserve(steps);
    for (kbcC_BC::Quad const& quad : condition.States()) {
      if (quad.state.HasValue()) {
        copies.emplace_back(quad.state.ConstGet().Copy());
      }
    }
    benchmark::DoNotOptimize(copies);
  }
}
BENCHMARK(BM_CopyStates)->Name("goal/edit_100_steps/baseline");

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
