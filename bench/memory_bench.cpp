// What does a state quad take in memory, and a row of the tables, beside the plain values that they hold?

#include <malloc.h>

#include <array>

#include "BenchModel.h"
#include "cls_Table.h"
#include "cls_Visitors.h"

namespace {

constexpr int steps = 50;

double InUse() {
  struct mallinfo2 const info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Keeps what was made to the end: the pool would give its blocks to what is measured next.
template <class T>
T const& Keep(std::unique_ptr<T> made) {
  static std::vector<std::unique_ptr<T>> kept;
  return *kept.emplace_back(std::move(made));
}

BoundaryConditions const& KeptModel(benchmark::State const& state) {
  return Keep(std::make_unique<BoundaryConditions>(ModelOf(static_cast<int>(state.range(0)), StepsOf(steps))));
}

/// Bytes that what `make` gives takes, by the count of its parts.
template <class Make, class Count>
void Measure(benchmark::State& state, Make make, Count count) {
  for (auto _ : state) {
    double const before = InUse();
    auto const& made = Keep(make(static_cast<int>(state.range(0))));
    state.counters["bytes"] = (InUse() - before) / count(made);
  }
}

double Quads(int objects) { return static_cast<double>(objects) * (steps + 1); }

void BM_Quads(benchmark::State& state) {
  kprC_StepList const list = StepsOf(steps);
  Measure(
      state, [&](int objects) { return std::make_unique<BoundaryConditions>(ModelOf(objects, list)); },
      [](BoundaryConditions const& model) { return Quads(model.Size()); });
}

/// The values of a quad and its state in one struct, without sharing and identities.
struct PlainQuad {
  std::string step;
  int status;
  void const* procedure;
  bool deactivate;
  std::string amplitude;
  int amplitudeState;
  std::array<double, 6> components;
  std::array<int, 6> componentStates;
  std::array<double, 12> complex;
  int buckleCase;
};

void BM_PlainQuads(benchmark::State& state) {
  Measure(
      state,
      [](int objects) { return std::make_unique<std::vector<PlainQuad>>(static_cast<std::size_t>(Quads(objects))); },
      [](std::vector<PlainQuad> const& quads) { return static_cast<double>(quads.size()); });
}

double Rows(cls_Database const& database) {
  double rows = 0.0;
  for (auto const& table : database.tables) rows += table->Rows();
  return rows;
}

void BM_Rows(benchmark::State& state) {
  BoundaryConditions const& model = KeptModel(state);
  for (auto _ : state) {
    double const before = InUse();
    auto made = std::make_unique<cls_Database>();
    {
      cls_WriteSession session(*made);
      model.DBWrite(cls_WriteVisitor(session));
    }
    made->Complete();
    cls_Database const& database = Keep(std::move(made));
    state.counters["bytes"] = (InUse() - before) / Rows(database);
  }
}

/// The cells alone.
void BM_Cells(benchmark::State& state) {
  BoundaryConditions const& model = KeptModel(state);
  cls_Database database;
  cls_WriteSession session(database);
  model.DBWrite(cls_WriteVisitor(session));
  database.Complete();
  for (auto _ : state) {
    double bytes = 4.0 * static_cast<double>(database.words.size()) + 8.0 * static_cast<double>(database.doubles.size());
    for (auto const& table : database.tables) {
      bytes += 8.0 * static_cast<double>(table->uids.size());
      for (cls_Column const& column : table->columns) {
        bytes += 4.0 * static_cast<double>(column.words.size()) + 8.0 * static_cast<double>(column.doubles.size());
      }
    }
    state.counters["bytes"] = bytes / Rows(database);
  }
}

#define GOAL(function, name) BENCHMARK(function)->Name("goal/" name)->RangeMultiplier(10)->Range(100, 10'000)->Iterations(1)

GOAL(BM_Quads, "memory_quad/ours");
GOAL(BM_PlainQuads, "memory_quad/baseline");
GOAL(BM_Rows, "memory_row/ours");
GOAL(BM_Cells, "memory_row/baseline");

}  // namespace
