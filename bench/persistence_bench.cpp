// What do saving and loading a model of 10,000 boundary conditions over 50 steps cost, beside the same rows through SQLite
// in one transaction and beside a plain binary archive of the same objects?

#include <filesystem>
#include <fstream>

#include "BenchModel.h"
#include "dbc_ModelFile.h"

#ifdef TVO_BENCH_SQLITE
#include <sqlite3.h>
#endif
#ifdef TVO_BENCH_ARCHIVE
#include <boost/archive/binary_iarchive.hpp>
#include <boost/archive/binary_oarchive.hpp>
#include <boost/serialization/string.hpp>
#endif

namespace {

constexpr int objects = 10'000;
constexpr int steps = 50;

BoundaryConditions const& Model() {
  static BoundaryConditions const model = ModelOf(objects, StepsOf(steps));
  return model;
}

std::string Path(char const* name) { return (std::filesystem::temp_directory_path() / name).string(); }

double Bytes(std::string const& path) { return static_cast<double>(std::filesystem::file_size(path)); }

/// What was loaded goes outside the measured time.
template <class Loaded>
void Discard(benchmark::State& state, Loaded& loaded) {
  state.PauseTiming();
  benchmark::DoNotOptimize(loaded);
  { Loaded const gone = std::exchange(loaded, Loaded()); }
  state.ResumeTiming();
}

// ---- ours

std::string const modelFile = Path("persistence_bench.model");

void BM_Save(benchmark::State& state) {
  Model();
  for (auto _ : state) {
    dbc_SaveObject(Model(), cow_String(modelFile));
  }
  state.counters["bytes"] = Bytes(modelFile);
}

void BM_Load(benchmark::State& state) {
  dbc_SaveObject(Model(), cow_String(modelFile));
  for (auto _ : state) {
    auto loaded = dbc_OpenObject(cow_String(modelFile));
    Discard(state, loaded);
  }
}

/// The same for models from tiny to large.
void BM_SaveObjects(benchmark::State& state) {
  BoundaryConditions const model = ModelOf(static_cast<int>(state.range(0)), StepsOf(steps));
  for (auto _ : state) {
    benchmark::DoNotOptimize(dbc_EncodeObject(model));
  }
}
void BM_LoadObjects(benchmark::State& state) {
  auto const bytes = dbc_EncodeObject(ModelOf(static_cast<int>(state.range(0)), StepsOf(steps)));
  for (auto _ : state) {
    auto loaded = dbc_DecodeObject(bytes, "model");
    Discard(state, loaded);
  }
}
BENCHMARK(BM_SaveObjects)->Name("goal/save_objects/ours")->RangeMultiplier(8)->Range(20, 10'240)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadObjects)->Name("goal/load_objects/ours")->RangeMultiplier(8)->Range(20, 10'240)->Unit(benchmark::kMillisecond);

#define GOAL(function, name) \
  BENCHMARK(function)->Name("goal/" name)->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond)

GOAL(BM_Save, "save_sqlite/ours");
GOAL(BM_Save, "save_archive/ours");
GOAL(BM_Save, "file_size/ours");
GOAL(BM_Load, "load_sqlite/ours");
GOAL(BM_Load, "load_archive/ours");

// ---- SQLite: the same rows

#ifdef TVO_BENCH_SQLITE

std::string const sqliteFile = Path("persistence_bench.sqlite");

cls_Database const& Rows() {
  static cls_Database const* const rows = [] {
    auto* const database = new cls_Database;
    cls_WriteSession session(*database);
    cls_WriteVisitor writer(session);
    Model().DBWrite(writer);
    database->Complete();
    return database;
  }();
  return *rows;
}

void Execute(sqlite3* database, std::string const& sql) { sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr); }

std::string TableName(cls_Table const& table) { return "t" + std::to_string(table.typeId); }

void SaveBySqlite() {
  std::filesystem::remove(sqliteFile);
  sqlite3* database = nullptr;
  sqlite3_open(sqliteFile.c_str(), &database);
  Execute(database, "BEGIN");
  for (auto const& table : Rows().tables) {
    std::string columns = "uid INTEGER";
    std::string places = "?";
    for (std::size_t i = 0; i < table->columns.size(); ++i) {
      columns += ", c" + std::to_string(i) + (table->columns[i].kind == cls_CellKind::Double ? " REAL" : " INTEGER");
      places += ",?";
    }
    Execute(database, "CREATE TABLE " + TableName(*table) + " (" + columns + ")");
    sqlite3_stmt* insert = nullptr;
    std::string const sql = "INSERT INTO " + TableName(*table) + " VALUES (" + places + ")";
    sqlite3_prepare_v2(database, sql.c_str(), -1, &insert, nullptr);
    for (std::uint32_t row = 0; row < table->Rows(); ++row) {
      sqlite3_bind_int64(insert, 1, static_cast<sqlite3_int64>(table->uids[row]));
      for (std::size_t i = 0; i < table->columns.size(); ++i) {
        int const place = static_cast<int>(i) + 2;
        if (table->columns[i].kind == cls_CellKind::Double) {
          sqlite3_bind_double(insert, place, table->columns[i].doubles[row]);
        } else {
          sqlite3_bind_int64(insert, place, table->columns[i].words[row]);
        }
      }
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
  }
  Execute(database, "COMMIT");
  sqlite3_close(database);
}

void BM_SaveBySqlite(benchmark::State& state) {
  Rows();
  for (auto _ : state) {
    SaveBySqlite();
  }
}
GOAL(BM_SaveBySqlite, "save_sqlite/baseline");

void BM_LoadBySqlite(benchmark::State& state) {
  SaveBySqlite();
  for (auto _ : state) {
    sqlite3* database = nullptr;
    sqlite3_open(sqliteFile.c_str(), &database);
    std::vector<std::vector<double>> columns;
    for (auto const& table : Rows().tables) {
      sqlite3_stmt* select = nullptr;
      std::string const sql = "SELECT * FROM " + TableName(*table);
      sqlite3_prepare_v2(database, sql.c_str(), -1, &select, nullptr);
      std::size_t const first = columns.size();
      columns.resize(first + static_cast<std::size_t>(sqlite3_column_count(select)));
      while (sqlite3_step(select) == SQLITE_ROW) {
        for (std::size_t i = first; i < columns.size(); ++i) {
          columns[i].push_back(sqlite3_column_double(select, static_cast<int>(i - first)));
        }
      }
      sqlite3_finalize(select);
    }
    sqlite3_close(database);
    Discard(state, columns);
  }
}
GOAL(BM_LoadBySqlite, "load_sqlite/baseline");

// The rows alone: tables to a file and back, on both sides without the objects that the tables are made of.

void BM_SaveRows(benchmark::State& state) {
  Rows();
  for (auto _ : state) {
    dbc_SaveDatabase(Rows(), dbc_SchemaRevision, cow_String(modelFile));
  }
}
GOAL(BM_SaveRows, "save_rows/ours");
GOAL(BM_SaveBySqlite, "save_rows/baseline");

void BM_LoadRows(benchmark::State& state) {
  dbc_SaveDatabase(Rows(), dbc_SchemaRevision, cow_String(modelFile));
  for (auto _ : state) {
    cls_Database loaded = dbc_OpenDatabase(cow_String(modelFile));
    Discard(state, loaded);
  }
}
GOAL(BM_LoadRows, "load_rows/ours");
GOAL(BM_LoadBySqlite, "load_rows/baseline");

#endif

// ---- a binary archive: the same objects, field by field

#ifdef TVO_BENCH_ARCHIVE

std::string const archiveFile = Path("persistence_bench.archive");

template <class Archive, class Text>
void SaveText(Archive& archive, Text const& text) {
  archive << std::string(text.View());
}

cow_String LoadText(auto& archive) {
  std::string text;
  archive >> text;
  return cow_String(text);
}

void SaveUid(auto& archive, cls_Persistent const& object) {
  std::uint64_t const uid = object.Uid().Value();
  archive << uid;
}

void LoadUid(auto& archive, cls_Persistent& object) {
  std::uint64_t uid = 0;
  archive >> uid;
  object.SetStoredUid(cls_Uid::Stored(uid));
}

void SaveState(auto& archive, kbcC_DisplacementBCState const& state) {
  SaveUid(archive, state);
  archive << state.deactivate;
  SaveUid(archive, state.amplitude);
  SaveText(archive, state.amplitude.ConstGet());
  int const amplitudeState = state.amplitude.State();
  archive << amplitudeState;
  for (auto const component : kbcC_DisplacementBCState::Components()) {
    SaveUid(archive, state.*component);
    double const value = (state.*component).ConstGet();
    int const valueState = (state.*component).State();
    archive << value << valueState;
  }
  for (auto const component : kbcC_DisplacementBCState::ComplexComponents()) {
    double const real = (state.*component).First();
    double const imaginary = (state.*component).Second();
    archive << real << imaginary;
  }
  int const buckleCase = static_cast<int>(state.buckleCase);
  archive << buckleCase;
}

void LoadState(auto& archive, kbcC_DisplacementBCState& state) {
  LoadUid(archive, state);
  archive >> state.deactivate;
  LoadUid(archive, state.amplitude);
  int attributeState = 0;
  state.amplitude.Get() = LoadText(archive);
  archive >> attributeState;
  state.amplitude.ForceState(static_cast<mdl_PropAttributeStateEnm>(attributeState));
  for (auto const component : kbcC_DisplacementBCState::Components()) {
    LoadUid(archive, state.*component);
    archive >> (state.*component).Get() >> attributeState;
    (state.*component).ForceState(static_cast<mdl_PropAttributeStateEnm>(attributeState));
  }
  for (auto const component : kbcC_DisplacementBCState::ComplexComponents()) {
    double real = 0.0;
    double imaginary = 0.0;
    archive >> real >> imaginary;
    state.*component = omi_complex(real, imaginary);
  }
  int buckleCase = 0;
  archive >> buckleCase;
  state.buckleCase = static_cast<kbcC_BucklingCaseEnm>(buckleCase);
}

void SaveByArchive() {
  std::ofstream file(archiveFile, std::ios::binary);
  boost::archive::binary_oarchive archive(file);
  for (cow_String const& key : Model().Keys()) {
    auto const& condition = static_cast<kbcC_DisplacementBC const&>(Model().ConstGet(key));
    SaveText(archive, key);
    SaveUid(archive, condition);
    SaveText(archive, condition.region.name);
    int const numbers[] = {condition.suppressionState, condition.distribution, condition.States().Length()};
    archive << numbers << condition.fixed;
    for (kbcC_BC::Quad const& quad : condition.States()) {
      SaveUid(archive, quad);
      SaveText(archive, quad.stepName);
      int const status = quad.status;
      bool const holds = quad.state.HasValue();
      std::uint64_t const step = quad.HasStep() ? quad.Step().Uid().Value() : 0;
      archive << status << step << holds;
      if (holds) {
        SaveState(archive, static_cast<kbcC_DisplacementBCState const&>(quad.state.ConstGet()));
      }
    }
  }
}

/// The objects as the archive gives them back; nothing is derived or checked.
struct ArchivedCondition {
  cow_String key;
  kbcC_DisplacementBC condition;
  kbcC_BC::Quads quads;
};

std::vector<ArchivedCondition> LoadByArchive() {
  std::ifstream file(archiveFile, std::ios::binary);
  boost::archive::binary_iarchive archive(file);
  std::vector<ArchivedCondition> loaded(objects);
  for (ArchivedCondition& entry : loaded) {
    entry.key = LoadText(archive);
    LoadUid(archive, entry.condition);
    entry.condition.region.name = LoadText(archive);
    int numbers[3] = {};
    archive >> numbers >> entry.condition.fixed;
    for (int i = 0; i < numbers[2]; ++i) {
      kbcC_BC::Quad quad;
      LoadUid(archive, quad);
      quad.stepName = LoadText(archive);
      int status = 0;
      std::uint64_t step = 0;
      bool holds = false;
      archive >> status >> step >> holds;
      quad.status = static_cast<mdl_PropagationStatusEnm>(status);
      if (holds) {
        auto state = std::make_unique<kbcC_DisplacementBCState>();
        LoadState(archive, *state);
        quad.state = state.release();
      }
      entry.quads.Append(std::move(quad));
    }
  }
  return loaded;
}

void BM_SaveByArchive(benchmark::State& state) {
  Model();
  for (auto _ : state) {
    SaveByArchive();
  }
  state.counters["bytes"] = Bytes(archiveFile);
}
GOAL(BM_SaveByArchive, "save_archive/baseline");
GOAL(BM_SaveByArchive, "file_size/baseline");

void BM_LoadByArchive(benchmark::State& state) {
  SaveByArchive();
  for (auto _ : state) {
    auto loaded = LoadByArchive();
    Discard(state, loaded);
  }
}
GOAL(BM_LoadByArchive, "load_archive/baseline");

#endif

}  // namespace
