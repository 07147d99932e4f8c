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

/// Bytes that what `make` gives takes, by the count of its parts.
template <class Make, class Count>
void Measure(benchmark::State& state, Make make, Count count) {
  for (auto _ : state) {
    double const before = InUse();
    auto const made = make(static_cast<int>(state.range(0)));
    state.counters["bytes"] = (InUse() - before) / count(*made);
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
  auto const rows = [](int objects) {
    BoundaryConditions const model = ModelOf(objects, StepsOf(steps));
    double const ofModel = InUse();
    auto database = std::make_unique<cls_Database>();
    {
      cls_WriteSession session(*database);
      model.DBWrite(cls_WriteVisitor(session));
    }
    database->Complete();
    return std::pair(std::move(database), InUse() - ofModel);
  };
  for (auto _ : state) {
    auto const [database, bytes] = rows(static_cast<int>(state.range(0)));
    state.counters["bytes"] = bytes / Rows(*database);
  }
}

/// The cells alone.
void BM_Cells(benchmark::State& state) {
  BoundaryConditions const model = ModelOf(static_cast<int>(state.range(0)), StepsOf(steps));
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
