// Do questions about a long sequence of steps, and edits of it, stay linear in its length?

#include "BenchModel.h"
#include "kprC_FrequencyStep.h"
#include "kprC_StepSequencer.h"

namespace {

/// General and perturbation steps in turn; the perturbations pass each question on to the general step before them.
kprC_StepContainer SequenceOf(int count) {
  kprC_StepContainer container;
  container.SetInitialStep(kprC_Step::initialCmd(), kprC_InitialStep());
  cow_String last = kprC_Step::initialCmd();
  for (int i = 0; i < count; ++i) {
    cow_String const name("Step-" + std::to_string(i));
    if (i % 10 == 0) {
      container.InsertAfter(last, name, kprC_StaticStep(), true);
    } else {
      container.InsertAfter(last, name, kprC_FrequencyStep(), true);
    }
    last = name;
  }
  return container;
}

/// Many short turns of each length: what else runs on the machine would hide how near to 1 the exponent is.
void SequenceLengths(benchmark::internal::Benchmark* family) {
  family->RangeMultiplier(2)->Range(125, 1000)->Repetitions(9)->MinTime(0.1);
}

void BM_RunAndAsk(benchmark::State& state) {
  int const count = static_cast<int>(state.range(0));
  kprC_StepContainer const container = SequenceOf(count);
  for (auto _ : state) {
    kprC_StepSequencer sequencer(container, false);
    sequencer.Run();
    benchmark::DoNotOptimize(sequencer.IsRemovable(count / 2));
    benchmark::DoNotOptimize(sequencer.IsSuppressable(count / 2));
  }
}
BENCHMARK(BM_RunAndAsk)->Name("goal/sequence/ours")->Apply(SequenceLengths);

/// One step suppressed, resumed, moved to the end and back, with the order tested after each edit.
void BM_EditAndRun(benchmark::State& state) {
  int const count = static_cast<int>(state.range(0));
  kprC_StepContainer container = SequenceOf(count);
  cow_String const before("Step-" + std::to_string(count / 2 - 1));
  cow_String const moved("Step-" + std::to_string(count / 2));
  auto const run = [&] { kprC_StepSequencer(container, false).Run(); };
  for (auto _ : state) {
    container.Get(moved).Suppress();
    run();
    container.Get(moved).Resume();
    run();
    for (cow_String const& after : {container.LastStep(), before}) {
      container.InsertAfter(after, moved, kprC_FrequencyStep(), false);
    }
  }
}
BENCHMARK(BM_EditAndRun)->Name("goal/sequence_edit/ours")->Apply(SequenceLengths);

}  // namespace
