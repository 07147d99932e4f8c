#include <algorithm>
#include <chrono>
#include <limits>
#include <set>

#include "../OldModel.h"
#include "../StepPlan.h"
#include "dbc_DatabaseConverter.h"
#include "mdl_Extension.h"
#include "nex_Exception.h"

// The links of the chains, on tables laid down by hand.

namespace {

unsigned int Id(char const* name) { return typ_ArchCompTable::FindId(name); }

cls_DeclaredAttribute Attribute(char const* key, cls_AttributeType type,
                                cls_CollectionType collection = cls_CollectionType::Single) {
  return {{0, key}, type, cls_PlainValueId, collection};
}

using enum cls_AttributeType;

/// A database in the making, and what became of it.
class OldVersionsTest : public testing::Test {
 protected:
  OldVersionsTest() { library_.SetUp(); }
  ~OldVersionsTest() override { library_.TearDown(); }

  OldTable Lay(char const* name, int version, std::uint32_t rows, std::vector<cls_DeclaredAttribute> const& attributes,
               char const* base = nullptr) {
    cls_Table& table = database_.AddTable(Id(name), name, version, base == nullptr ? 0 : Id(base));
    for (auto const& attribute : attributes) table.AddColumns(attribute);
    for (std::uint32_t row = 0; row < rows; ++row) table.NewRow(++uid_);
    table.Complete();
    return {database_, table};
  }
  OldTable Table(char const* name) { return {database_, *database_.FindTable(Id(name))}; }
  int Version(char const* name) { return database_.FindTable(Id(name))->version; }
  void Convert() {
    ASSERT_EQ(dbc_DatabaseConverter::FirstUnknown(database_), "");
    dbc_DatabaseConverter(database_).Run();
  }
  std::uint32_t Map(cls_CollectionType kind, mem_Array<std::uint32_t> const& words, std::uint32_t count) {
    database_.collections.push_back({++uid_, kind, static_cast<std::uint32_t>(database_.words.size()), count});
    database_.words.insert(database_.words.end(), words.begin(), words.end());
    return static_cast<std::uint32_t>(database_.collections.size() - 1);
  }
  cls_Collection const& CollectionOf(OldTable const& table, char const* field, std::uint32_t row) {
    return database_.collections.at(table.Words(field).at(row));
  }

  /// A container of steps "A" and "B" at that version: two analysis steps whose procedures stand in the other order.
  void LayStepContainer(int version) {
    OldTable analysis = Lay("kprC_AnalysisStep", 328, 2, {Attribute("procedure", Object)}, "kprC_Step");
    Lay("kprC_Step", 439, 2, {Attribute("stepId", Int)});
    analysis.Words(cls_BaseClassField) = {0, 1};
    analysis.Words("procedure#ClassID") = {Id("kprC_Static"), Id("kprC_Frequency")};
    analysis.Words("procedure#OID") = {1, 0};
    Lay("kprC_Static", 448, 2, {});
    Lay("kprC_Frequency", 443, 1, {});
    OldTable container = Lay("kprC_StepContainer", version, 1, {}, "mdl_IdRepositoryOfCows<cow_String, kprC_Step>");
    container.Words(cls_BaseClassField) = {0};
    cls_Table& base =
        database_.AddTable(Id("mdl_IdRepositoryOfCows<cow_String, kprC_Step>"),
                           "mdl_IdRepositoryOfCows<cow_String, kprC_Step>", 203, Id("mdl_Repository"));
    for (auto const& declared : cls_ClassRegistrar::Present().Get(base.typeId).Declared()) base.AddColumns(declared);
    base.NewRow(0);
    base.Complete();
    OldTable const repository(database_, base);
    unsigned int const step = Id("kprC_AnalysisStep");
    std::uint32_t const a = database_.StringNumber("A");
    std::uint32_t const b = database_.StringNumber("B");
    repository.Words("nameToID#OID") = {Map(cls_CollectionType::NameToId, {a, 8, b, 9}, 2)};
    repository.Words("IDToObj#OID") = {Map(cls_CollectionType::ObjectMapById, {8, step, 0, 9, step, 1}, 2)};
  }
  mem_Array<std::uint32_t> Targets() {
    OldTable const repository = Table("mdl_IdRepositoryOfCows<cow_String, kprC_Step>");
    cls_Collection const& map = CollectionOf(repository, "IDToObj#OID", 0);
    auto const first = database_.words.begin() + map.first;
    return {first, first + std::ptrdiff_t{3} * map.count};
  }

  cls_Database database_;

 private:
  LibraryEnvironment library_;
  std::uint64_t uid_ = 1000;
};

}  // namespace

TEST_F(OldVersionsTest, AFrequencyStepGetsWhatEachRevisionBrought) {
  double const none = std::numeric_limits<double>::max();
  for (int const version : {831, 858, 881, 1033, 1044, 1346}) {
    SCOPED_TRACE(version);
    database_ = cls_Database();
    std::vector<cls_DeclaredAttribute> attributes = {
        Attribute("numEigen", Int), Attribute("propertyEvaluationFrequency", Double),
        Attribute("acousticCoupling", version < 1033 ? Int : Enum)};
    if (version >= 1033) attributes.push_back(Attribute("projectDamping", Bool));
    if (version == 1346) attributes = cls_ClassRegistrar::Present().Get(Id("kprC_FrequencyStep")).Declared();
    OldTable old = Lay("kprC_FrequencyStep", version, 4, attributes, "kprC_AnalysisStep");
    old.Words("numEigen") = {4, 5, 6, 7};
    old.Doubles("propertyEvaluationFrequency") = {0.0, -1.0, 3.5, std::numeric_limits<double>::quiet_NaN()};
    old.Words("acousticCoupling") = {0, 1, 2, 0};
    if (version >= 1033) {
      for (std::uint32_t row = 0; row < 4; ++row) old.SetText("acousticCoupling", row, "AC_PROJECTION");
    }
    Convert();

    OldTable const now = Table("kprC_FrequencyStep");
    EXPECT_EQ(Version("kprC_FrequencyStep"), 1346);
    EXPECT_EQ(now.Words("numEigen"), (mem_Array<std::uint32_t>{4, 5, 6, 7}));
    auto const& evaluation = now.Doubles("propertyEvaluationFrequency");
    EXPECT_EQ(evaluation[0], version < 881 ? none : 0.0);
    EXPECT_EQ(evaluation[1], version < 881 ? none : -1.0);
    EXPECT_EQ(evaluation[2], 3.5);
    EXPECT_EQ(evaluation[3] == none, version < 881);
    EXPECT_EQ(now.Text("acousticCoupling", 0), version < 1033 ? "AC_OFF" : "AC_PROJECTION");
    EXPECT_EQ(now.Text("acousticCoupling", 2), version < 1033 ? "AC_ON" : "AC_PROJECTION");
    if (version == 1346) continue;

    EXPECT_EQ(now.Has("simLinearDynamics"), version < 1044);
    if (version < 1044) {
      EXPECT_EQ(now.Words("simLinearDynamics")[3], 0u);
    }
    EXPECT_EQ(now.Has("acousticRangeFactor"), version < 1033);
    if (version < 1033) {
      EXPECT_EQ(now.Words("projectDamping")[3], 1u);
      EXPECT_EQ(now.Doubles("acousticRangeFactor")[3], 1.0);
    }
    EXPECT_EQ(now.Has("firstCutoffMultiplier"), version < 858);
    if (version < 858) {
      EXPECT_EQ(now.Doubles("substructureCutoffMultiplier")[3], 5.0);
      EXPECT_EQ(now.Doubles("firstCutoffMultiplier")[3], 1.6);
      EXPECT_EQ(now.Doubles("secondCutoffMultiplier")[3], 1.3);
      EXPECT_EQ(CollectionOf(now, "residualModeDof#OID", 3).kind, cls_CollectionType::IntList);
      EXPECT_EQ(CollectionOf(now, "residualModeRegion#OID", 3).kind, cls_CollectionType::StringList);
      EXPECT_EQ(CollectionOf(now, "residualModeRegion#OID", 3).count, 0u);
      EXPECT_EQ(now.Words("limitSavedEigenvectorRegion#ClassID")[3], rgnC_Region::TypeId());
      EXPECT_EQ(now.Words("limitSavedEigenvectorRegion#OID"), (mem_Array<std::uint32_t>{0, 1, 2, 3}));
    }
  }
}

TEST_F(OldVersionsTest, AStepGetsAnIdAndIsNotSuppressed) {
  Lay("kprC_Step", 207, 3, {Attribute("stepId", Int)}).Words("stepId") = {0, 42, 0};
  Convert();
  OldTable const now = Table("kprC_Step");
  EXPECT_EQ(Version("kprC_Step"), 1327);
  EXPECT_EQ(now.Words("stepId")[1], 42u);
  EXPECT_NE(now.Words("stepId")[0], 0u);
  EXPECT_EQ(now.Words("stepId")[2], now.Words("stepId")[0] + 1);
  EXPECT_EQ(now.Words("suppress"), (mem_Array<std::uint32_t>{0, 0, 0}));

  std::uint32_t const last = now.Words("stepId")[2];
  database_ = cls_Database();
  Lay("kprC_Step", 207, 1, {Attribute("description", String)}).SetText("description", 0, "pull");
  Convert();
  EXPECT_EQ(Table("kprC_Step").Words("stepId")[0], last + 1);
  EXPECT_EQ(Table("kprC_Step").Text("description", 0), "pull");

  database_ = cls_Database();
  OldTable const suppressed = Lay("kprC_Step", 439, 1, {Attribute("stepId", Int), Attribute("suppress", Bool)});
  suppressed.Words("suppress")[0] = 1;
  Convert();
  EXPECT_EQ(Table("kprC_Step").Words("suppress")[0], 1u);
  EXPECT_EQ(Table("kprC_Step").Words("stepId")[0], 0u) << "only versions below 409 get one";
}

TEST_F(OldVersionsTest, AnAnalysisStepGetsWhatEachRevisionBrought) {
  struct {
    char const *old, *solver, *storage;
  } constexpr solvers[] = {{"DIRECT_SYMMETRIC", "DIRECT", "SYMMETRIC"},     {"SYMMETRIC", "DIRECT", "SYMMETRIC"},
                           {"DIRECT_UNSYMMETRIC", "DIRECT", "UNSYMMETRIC"}, {"UNSYMMETRIC", "DIRECT", "UNSYMMETRIC"},
                           {"DDM_ITERATIVE", "ITERATIVE", "SYMMETRIC"},     {"ITERATIVE", "DIRECT", "SOLVER_DEFAULT"},
                           {"DIRECT", "DIRECT", "SOLVER_DEFAULT"},          {"", "DIRECT", "SOLVER_DEFAULT"}};
  for (int const version : {302, 328, 831, 867, 1389, 2001, 2511}) {
    SCOPED_TRACE(version);
    database_ = cls_Database();
    std::uint32_t const rows = std::size(solvers);
    OldTable old = Lay("kprC_AnalysisStep", version, rows, {Attribute("matrixSolver", Enum)}, "kprC_Step");
    for (std::uint32_t row = 0; row < rows; ++row) old.SetText("matrixSolver", row, solvers[row].old);
    if (version == 1389) {
      old.Add({{0, "activateElemContainer"}, Object, Id("mdl_MapOfCowsRepository")});
      old.Words("activateElemContainer#ClassID")[0] = Id("mdl_MapOfCowsRepository");
      old.Words("activateElemContainer#OID")[0] = 0;
      cls_Table& there = mdl_ExtensionRepository::Attributes().AddTo(database_);
      there.NewRow(5);
      there.Complete();
    }
    Convert();

    OldTable const now = Table("kprC_AnalysisStep");
    EXPECT_EQ(Version("kprC_AnalysisStep"), 2608);
    for (std::uint32_t row = 0; row < rows; ++row) {
      EXPECT_EQ(now.Text("matrixSolver", row), version < 1389 ? solvers[row].solver : solvers[row].old);
      if (version < 1389) {
        EXPECT_EQ(now.Text("matrixStorage", row), solvers[row].storage);
      }
    }
    EXPECT_EQ(now.Has("convertSDI"), version < 867);
    if (version < 867) {
      EXPECT_EQ(now.Text("convertSDI", 1), "PROPAGATED");
    }
    EXPECT_EQ(now.Has("scc#OID"), version < 2511);
    if (version < 2511) {
      EXPECT_EQ(CollectionOf(now, "scc#OID", 1).kind, cls_CollectionType::ObjectMap);
    }
    EXPECT_EQ(CollectionOf(now, "scc2#OID", 1).count, 0u);
    EXPECT_EQ(now.Has("activateElemContainer#OID"), version < 2001);
    if (version < 2001) {
      // One for each, each with a base that has none itself; a row that had one keeps it.
      auto const& containers = now.Words("activateElemContainer#OID");
      EXPECT_EQ(std::set(containers.begin(), containers.end()).size(), rows);
      EXPECT_EQ(containers[0], 0u);
      OldTable const made = Table("mdl_MapOfCowsRepository");
      EXPECT_EQ(made.Rows(), rows);
      std::uint32_t const base = made.Words(cls_BaseClassField)[containers[1]];
      EXPECT_EQ(Table("mdl_Repository").Words(cls_BaseClassField)[base], cls_NoRow);
    }
  }
}

TEST_F(OldVersionsTest, AContainerGetsABaseWithoutABase) {
  Lay("kprC_PropagatingContainer<kbcC_BC>", 203, 2, {Attribute("map", Object, cls_CollectionType::ObjectMap)});
  Convert();
  OldTable const now = Table("kprC_PropagatingContainer<kbcC_BC>");
  EXPECT_EQ(now.Words(cls_BaseClassField), (mem_Array<std::uint32_t>{0, 1}));
  EXPECT_EQ(Table("mdl_Repository").Words(cls_BaseClassField), (mem_Array<std::uint32_t>{cls_NoRow, cls_NoRow}));
  EXPECT_TRUE(now.Has("map#OID"));

  dbc_DatabaseConverter converter(database_);
  for (auto const& entry : dbc_OldClassRegistrar::Instance().InOrder()) entry.version.GetRef().SchemaChanges(converter);
  EXPECT_EQ(std::count_if(converter.GetConverter(510).Links().begin(), converter.GetConverter(510).Links().end(),
                          [](auto const& link) { return link->ConversionFunction() != nullptr; }),
            6);
}

TEST_F(OldVersionsTest, AStepContainerRefersToTheProceduresThatBecameSteps) {
  for (int const version : {203, 800}) {
    database_ = cls_Database();
    LayStepContainer(version);
    Convert();
    EXPECT_EQ(Version("kprC_StepContainer"), 831);
    unsigned int const pull = Id("kprC_StaticStep");
    unsigned int const modes = Id("kprC_FrequencyStep");
    EXPECT_EQ(Targets(), (mem_Array<std::uint32_t>{8, pull, 1, 9, modes, 0}));
    // The reference is turned around: the analysis step is the base of what it held.
    EXPECT_EQ(Table("kprC_StaticStep").Words(cls_BaseClassField), (mem_Array<std::uint32_t>{cls_NoRow, 0}));
    EXPECT_EQ(Table("kprC_FrequencyStep").Words(cls_BaseClassField), (mem_Array<std::uint32_t>{1}));
    EXPECT_FALSE(Table("kprC_AnalysisStep").Has("procedure#OID"));
    EXPECT_EQ(database_.FindTable(Id("kprC_Static")), nullptr);
    EXPECT_EQ(Version("kprC_FrequencyStep"), 1346) << "the chain of the new class goes on";
    EXPECT_EQ(Table("kprC_FrequencyStep").Doubles("firstCutoffMultiplier")[0], 1.6);
  }
  // A database that was brought there by another way is left alone.
  database_ = cls_Database();
  LayStepContainer(800);
  database_.AddTable(0x220006, "other", 203, 0);
  mem_Array<std::uint32_t> const before = Targets();
  dbc_DatabaseConverter(database_).Run();
  EXPECT_EQ(Targets(), before);
}

TEST_F(OldVersionsTest, APairOfStepAndProcedureFindsItsStepByName) {
  LayStepContainer(800);
  std::vector<cls_DeclaredAttribute> const attributes = {Attribute("stepName", String), Attribute("procedure", Object)};
  OldTable const pairs = Lay("kprC_StepNameProcedurePair", 203, 6, attributes);
  char const* const names[] = {"A", "B", "A", "B", "Gone", "Initial"};
  for (std::uint32_t row = 0; row < 6; ++row) pairs.SetText("stepName", row, names[row]);
  // Row 0 of the static procedures belongs to no step: a copy that the pair held by itself. Row 1 is that of step "A".
  unsigned int const oldPull = Id("kprC_Static");
  pairs.Words("procedure#ClassID") = {oldPull, Id("kprC_Frequency"), oldPull, oldPull, oldPull, 0};
  pairs.Words("procedure#OID") = {1, 0, 0, 1, 1, cls_NoRow};
  Convert();
  OldTable const now = Table("kprC_StepNameProcedurePair");
  EXPECT_EQ(Version("kprC_StepNameProcedurePair"), 831);
  unsigned int const pull = Id("kprC_StaticStep");
  unsigned int const modes = Id("kprC_FrequencyStep");
  EXPECT_EQ(now.Words("procedure#ClassID"), (mem_Array<std::uint32_t>{pull, modes, pull, modes, pull, 0}));
  EXPECT_EQ(now.Words("procedure#OID"), (mem_Array<std::uint32_t>{1, 0, 1, 0, 1, cls_NoRow}));

  // A small file can hold many pairs and many containers without names: the containers are walked once.
  database_ = cls_Database();
  LayStepContainer(800);
  cls_Table& containers = *database_.FindTable(Id("mdl_IdRepositoryOfCows<cow_String, kprC_Step>"));
  OldTable(database_, containers).Words("nameToID#OID") = {cls_NoRow};
  while (containers.Rows() < 100'000) containers.NewRow(0);
  containers.Complete();
  OldTable const many = Lay("kprC_StepNameProcedurePair", 203, 100'000, attributes);
  std::ranges::fill(many.Words("procedure#ClassID"), oldPull);
  std::ranges::fill(many.Words("procedure#OID"), 0u);
  auto const start = std::chrono::steady_clock::now();
  Convert();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST_F(OldVersionsTest, ARenamedTableGoesByItsChainAndFailsInTheGivenWords) {
  // Rows below the last number of the old class are brought up to it first, whatever they hold.
  OldTable const old = Lay("kprC_Static", 203, 40, {Attribute("timePeriod", Double)});
  for (std::uint32_t row = 0; row < 40; ++row) old.Doubles("timePeriod")[row] = row;
  OldTable const former = Lay("kprC_DdbAnalysisStep", 203, 1, {Attribute("procedure", Object)}, "kprC_DdbStep");
  Lay("kprC_DdbStep", 203, 1, {});
  former.Words("procedure#ClassID") = {Id("kprC_Static")};
  former.Words("procedure#OID") = {33};
  Convert();
  OldTable const now = Table("kprC_StaticStep");
  EXPECT_EQ(Version("kprC_StaticStep"), 1563);
  ASSERT_EQ(now.Rows(), 40u);
  EXPECT_EQ(now.Doubles("timePeriod")[39], 39.0);
  EXPECT_EQ(now.Words(cls_BaseClassField)[33], 0u);
  EXPECT_EQ(Table("kprC_AnalysisStep").Rows(), 1u);
  EXPECT_EQ(Table("kprC_Step").Rows(), 1u);

  // The random response derives from its analysis step under its former name already. An empty table brings nothing.
  database_ = cls_Database();
  Lay("kprC_RandomResponse", 831, 1, {}, "kprC_AnalysisStep").Words(cls_BaseClassField) = {1};
  Lay("kprC_StaticStep", 831, 1, {}, "kprC_AnalysisStep").Words(cls_BaseClassField) = {0};
  Lay("kprC_Static", 448, 0, {});
  Lay("kprC_AnalysisStep", 831, 2, {}, "kprC_Step");
  Convert();
  EXPECT_EQ(Version("kprC_RandomResponseStep"), 1385);
  EXPECT_EQ(Table("kprC_RandomResponseStep").Words(cls_BaseClassField), (mem_Array<std::uint32_t>{1}));
  EXPECT_EQ(Table("kprC_StaticStep").Words(cls_BaseClassField), (mem_Array<std::uint32_t>{0}));

  auto const refusal = [&](auto change) -> std::string {
    database_ = cls_Database();
    Lay("kprC_Static", 203, 1, {});
    try {
      change();
    } catch (nex_PrimException<atr_String, 1> const& exception) {
      return std::string(exception.what()) + " at " + exception.File();
    }
    return "passes";
  };
  EXPECT_EQ(refusal([&] {
              dbc_DatabaseConverter converter(database_);
              converter.RenameTable("kprC_Static", Id("kprC_Static"), 9999, Id("kprC_StaticStep"), "here");
            }),
            "rename_kprC_Static failed: inputTable can't be NULL at here");
  cls_ClassRegistrar::Present().DeleteClass("kprC_StaticStep", Id("kprC_StaticStep"));
  EXPECT_EQ(refusal([&] { dbc_DatabaseConverter(database_).Run(); }),
            "rename_kprC_Static failed: outputTable can't be NULL at TVOOdb/TVOOdbKprC.m/src/kprC_StaticSC");
  kprC_StaticStep::InitializeMetadata(cls_ClassRegistrar::Present());
}

// Nothing is done to tables of today: no function runs, and the cells stay where they are.
TEST_F(OldVersionsTest, TablesOfThePresentVersionAreLeftAlone) {
  for (auto const& [typeId, present] : cls_ClassRegistrar::Present().All()) {
    if (present->Attributes() != nullptr) present->Attributes()->AddTo(database_).NewRow(1);
  }
  database_.Complete();
  std::vector<cls_Table*> tables;
  for (auto const& table : database_.tables) tables.push_back(table.get());
  EXPECT_FALSE(dbc_DatabaseConverter::IsOld(database_));
  EXPECT_EQ(dbc_DatabaseConverter::FirstUnknown(database_), "");
  dbc_DatabaseConverter(database_).Run();
  ASSERT_EQ(database_.tables.size(), tables.size());
  for (std::size_t i = 0; i < tables.size(); ++i) EXPECT_EQ(database_.tables[i].get(), tables[i]);
  EXPECT_TRUE(database_.collections.empty());
}
