// What does opening a model of the first revision cost, beside opening the same model as it is saved today? 1,000 steps
// and 10,000 boundary conditions, created in the last of the steps: each has a state quad for every step all the same.

#include "../tests/OldModel.h"
#include "BenchModel.h"
#include "dbc_ModelFile.h"
#include "ddr_Model.h"

namespace {

constexpr int steps = 1'000;
constexpr int objects = 10'000;

ddr_Model const& Model() {
  static ddr_Model const model = [] {
    ddr_Model made;
    auto& container = dynamic_cast<kprC_StepContainer&>(made.GetExtension("steps").GetValue());
    container.SetInitialStep(kprC_Step::initialCmd(), kprC_InitialStep());
    for (int i = 1; i <= steps; ++i) {
      container.InsertAfter(container.LastStep(), cow_String("Step-" + std::to_string(i)), kprC_StaticStep(), true);
    }
    auto& conditions = dynamic_cast<BoundaryConditions&>(made.GetExtension("bcs").GetValue());
    conditions.UpdateSteps(container.StepList(), cow_String(), false);
    for (int i = 0; i < objects; ++i) {
      kbcC_DisplacementBCState value;
      value.u1 = 0.5 + i;
      kbcC_DisplacementBC condition;
      condition.region = rgnC_Region(cow_String("Set-" + std::to_string(i)));
      condition.Insert(container.LastStep(), value);
      conditions.Insert(cow_String("BC-" + std::to_string(i)), condition);
    }
    return made;
  }();
  return model;
}

void Open(benchmark::State& state, std::vector<std::uint8_t> const& file) {
  for (auto _ : state) {
    auto const opened = dbc_DecodeObject(file, "model");
    state.PauseTiming();
    auto const& model = dynamic_cast<ddr_Model const&>(*opened);
    if (dynamic_cast<BoundaryConditions const&>(model.ConstGetExtension("bcs").ConstGetValue()).Size() != objects) {
      state.SkipWithError("not the model");
    }
    state.ResumeTiming();
  }
  state.counters["bytes"] = static_cast<double>(file.size());
}

void BM_OpenOld(benchmark::State& state) {
  static std::vector<std::uint8_t> const file = OldModel(Model(), 203).File();
  Open(state, file);
}

void BM_OpenPresent(benchmark::State& state) {
  static std::vector<std::uint8_t> const file = dbc_EncodeObject(Model());
  Open(state, file);
}

#define GOAL(function, name) \
  BENCHMARK(function)->Name("goal/" name)->Iterations(1)->Repetitions(3)->Unit(benchmark::kMillisecond)

GOAL(BM_OpenOld, "open_old/ours");
GOAL(BM_OpenPresent, "open_old/baseline");

}  // namespace
