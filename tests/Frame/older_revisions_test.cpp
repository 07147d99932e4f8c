#include <filesystem>
#include <fstream>
#include <set>
#include <unistd.h>

#include "../OldModel.h"
#include "../StepPlan.h"
#include "kbcC_ConnDisplacementBC.h"
#include "dbc_DatabaseConverter.h"
#include "ddr_Model.h"
#include "kbcC_DisplacementBC.h"
#include "kprC_ModelMembers.h"
#include "kprC_Procedures.h"
#include "kprC_StepContainer.h"

// Whole models of earlier revisions: opened they are the model of today, and whatever is wrong with them is refused.

namespace {

using Conditions = kprC_PropagatingContainer<kbcC_BC>;
using Bytes = std::vector<std::uint8_t>;

constexpr int revisions[] = {203, 204,  205,  207,  302,  328,  409,  439,  445,  448,  510,  800,
                             831, 851,  858,  867,  871,  881,  1033, 1035, 1044, 1327, 1346, 1389,
                             1563, 2001, 2511, 2608};

template <class T>
T& Extension(ddr_Model& model, char const* name) {
  return dynamic_cast<T&>(model.GetExtension(name).GetValue());
}
template <class T>
T const& Extension(cls_Persistent const& model, char const* name) {
  return dynamic_cast<T const&>(dynamic_cast<ddr_Model const&>(model).ConstGetExtension(name).ConstGetValue());
}

/// Steps of three procedures whose values conversion cannot change, and conditions that are created, modified, moved
/// out and suppressed on the way.
ddr_Model SampleModel() {
  ddr_Model model;
  auto& steps = Extension<kprC_StepContainer>(model, "steps");
  steps.SetInitialStep("Initial", kprC_InitialStep());
  cow_String last = "Initial";
  auto const add = [&](char const* name, kprC_AnalysisStep const& step) {
    steps.InsertAfter(last, name, step, false);
    last = name;
  };
  kprC_StaticStep pull;
  pull.description = "pulls";
  pull.initialInc = pull.minInc = pull.maxInc = pull.timePeriod = 2.0;
  pull.matrixStorage = kprC_Step::MatrixStorageEnm::SYMMETRIC;
  pull.stepId = 11;
  add("Pull", pull);
  kprC_FrequencyStep modes;
  modes.numEigen = 12;
  modes.firstCutoffMultiplier = 1.6;
  modes.secondCutoffMultiplier = 1.3;
  modes.projectDamping = true;
  modes.simLinearDynamics = false;
  modes.acousticCoupling = kprC_FrequencyStep::AC_OFF;
  modes.stepId = 12;
  add("Modes", modes);
  kprC_ModalDynamicsStep swing;
  swing.timePeriod = 3.0;
  swing.incSize = 0.1;
  swing.directDamping = kprC_DirectDamping();
  swing.stepId = 13;
  add("Swing", swing);
  pull.description = "pulls back";
  pull.stepId = 14;
  add("Back", pull);

  auto& conditions = Extension<Conditions>(model, "bcs");
  conditions.UpdateSteps(steps.StepList(), cow_String(), false);
  for (int i = 0; i < 4; ++i) {
    kbcC_DisplacementBCState state;
    state.u1 = i == 1 || i == 2 ? 0.0 : 0.5 + i;
    kbcC_DisplacementBC condition;
    condition.region = rgnC_Region(cow_String("Set-" + std::to_string(i)));
    condition.fixed = i == 1;
    condition.Insert(i == 2 ? "Initial" : "Pull", state);
    conditions.Insert(cow_String("BC-" + std::to_string(i)), condition);
  }
  conditions.Get("BC-3").Deactivate("Back");
  kbcC_ConnDisplacementBC hinge;
  hinge.region = rgnC_Region("Wire");
  kbcC_ConnDisplacementBCState turn;
  turn.ur1 = 0.25;
  hinge.Insert("Pull", turn);
  conditions.Insert("Hinge", hinge);

  kprC_TimePoint hits;
  hits.points.Append({0.5});
  hits.points.Append({1.0, 2.0, 0.25});
  Extension<kprC_TimePointContainer>(model, "timePoints").Insert("Hits", hits);
  return model;
}

/// The model with all step ids 0: revisions before 409 had none, and conversion gives new ones.
std::unique_ptr<cls_Persistent> WithoutStepIds(cls_Persistent const& model) {
  cls_Database database;
  cls_WriteSession session(database);
  model.DBWrite(cls_WriteVisitor(session));
  database.Complete();
  cls_Table& table = *database.FindTable(kprC_Step::TypeId());
  auto& ids = table.columns[static_cast<std::size_t>(table.FindColumn("stepId"))].words;
  std::fill(ids.begin(), ids.end(), 0u);
  return dbc_DecodeObject(dbc_EncodeDatabase(database, dbc_SchemaRevision), "ids");
}

class OlderRevisionsTest : public testing::Test {
 protected:
  static std::string Refused(Bytes const& file) {
    return Refusal([&] { dbc_DecodeObject(file, "old.db"); });
  }
  /// Why the model of that revision is refused once its tables are changed so.
  std::string RefusedWith(int revision, auto change) const {
    OldModel old(model_, revision);
    change(old.database);
    std::string const text = Refused(old.File());
    std::size_t const offset = text.find(" at offset ");
    return offset == std::string::npos ? text : text.substr(text.find(": ", offset) + 2);
  }
  static OldTable Table(cls_Database& database, char const* name) {
    return {database, *database.FindTable(typ_ArchCompTable::FindId(name))};
  }

  struct LibraryUp {
    LibraryUp() { TVOOdbAttrEO_initialize(depth); }
    ~LibraryUp() { TVOOdbAttrEO_finalize(depth); }
    int depth = 0;
  };
  LibraryUp library_;
  ddr_Model model_ = SampleModel();
};

}  // namespace

// A line a class: its old versions, each with its group and the revision at which it goes on, and where the class went.
// These numbers stand in databases: lines get longer, and nothing in them changes.
TEST_F(OlderRevisionsTest, KnowsEveryVersionThatAClassEverHad) {
  dbc_OldClassRegistrar& registrar = dbc_OldClassRegistrar::Instance();
  cls_Database none;
  dbc_DatabaseConverter converter(none);
  for (auto const& entry : registrar.InOrder()) {
    entry.version.GetRef().SchemaChanges(converter);
    entry.version.GetRef().ClassesToDelete(converter);
    entry.version.GetRef().ClassesToRename(converter);
  }
  std::map<std::pair<unsigned int, int>, int> next;
  for (int revision = 0; revision <= dbc_SchemaRevision; ++revision) {
    for (auto const& link : converter.GetConverter(revision).Links()) {
      next[{link->TypeId(), link->OldVersion()}] = revision;
    }
  }
  std::map<std::string, std::string> lines;
  for (auto const& entry : registrar.InOrder()) {
    cls_ClassMetadata const& old = *entry.metadata;
    std::string& line = lines[old.Name().CStr()];
    line += " | " + std::to_string(old.Version()) + " (" + std::to_string(entry.group) + ")";
    auto const link = next.find({old.TypeId(), old.Version()});
    if (link != next.end()) line += " to " + std::to_string(link->second);
    bool const last = registrar.Versions(old.TypeId()).back() == old.Version();
    if (last && converter.DeletedClasses().IsMember(old.TypeId())) {
      cow_String const* const renamed = converter.RenamedClasses().Find(old.Name());
      line += renamed == nullptr ? " removed" : std::string(" now ") + renamed->CStr();
    }
    cls_ClassMetadata const* const present = cls_ClassRegistrar::Present().Find(old.TypeId());
    if (last && present != nullptr) {
      EXPECT_EQ(next[std::pair(old.TypeId(), old.Version())], present->Version()) << old.Name().CStr();
    }
  }
  std::string text;
  for (auto const& [name, line] : lines) text += name + line + "\n";
  std::ifstream file(TVO_OLD_VERSIONS);
  EXPECT_EQ(text, std::string(std::istreambuf_iterator<char>(file), {}));
}

TEST_F(OlderRevisionsTest, AModelOfAnyRevisionOpensAsTheModelOfToday) {
  for (int const revision : revisions) {
    SCOPED_TRACE(revision);
    // Time points came with 809: an older model does not even have a place for them.
    ddr_Model model = model_;
    if (revision < 809) model.extensions.Remove("timePoints");
    auto const expected = WithoutStepIds(model);
    auto const opened = dbc_DecodeObject(OldModel(model, revision).File(), "old.db");
    auto const& steps = Extension<kprC_StepContainer>(*opened, "steps");
    ASSERT_EQ(steps.Keys(), Extension<kprC_StepContainer>(model_, "steps").Keys());
    EXPECT_EQ(Refusal([&] { steps.AssertValid(); }), "passes");
    EXPECT_TRUE(cls_EqualValues(*WithoutStepIds(*opened), *expected));

    std::set<int> ids;
    for (cow_String const& name : steps.Keys()) ids.insert(steps.ConstGet(name).stepId);
    EXPECT_TRUE(revision >= 409 || (ids.size() == 5 && !ids.contains(0)));
    EXPECT_TRUE(revision < 409 || ids.contains(14));

    // The steps of the model are those that conditions and lists of steps hold.
    auto const& conditions = Extension<Conditions>(*opened, "bcs");
    for (kprC_StepNameProcedurePair const& pair : conditions.Procedures()) {
      EXPECT_TRUE(pair.procedure.IsNull() || &pair.procedure.ConstGet() == &steps.ConstGet(pair.stepName));
    }
    for (auto const& quad : conditions.ConstGet("BC-0").States()) {
      EXPECT_TRUE(!quad.HasStep() || &quad.Step() == &steps.ConstGet(quad.stepName));
    }
    auto const again = dbc_DecodeObject(dbc_EncodeObject(*opened), "new.db");
    EXPECT_TRUE(cls_EqualValues(*again, *opened));
  }
}

// The order of these steps is none that an analysis could have; only what becomes of each counts.
TEST_F(OlderRevisionsTest, EveryProcedureThatWasAClassBecomesItsStep) {
  ddr_Model model;
  auto& steps = Extension<kprC_StepContainer>(model, "steps");
  steps.SetInitialStep("Initial", kprC_InitialStep());
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
    cls_ClassMetadata const* const metadata = cls_ClassRegistrar::Present().Find(row.id);
    if (metadata == nullptr || OldModel::FormerProcedure(row.id) == 0) continue;
    std::unique_ptr<cls_Persistent> const made(metadata->New());
    auto& step = dynamic_cast<kprC_AnalysisStep&>(*made);
    step.description = metadata->Name();
    if (auto* const frequency = dynamic_cast<kprC_FrequencyStep*>(&step)) {
      frequency->firstCutoffMultiplier = 1.6;
      frequency->secondCutoffMultiplier = 1.3;
      frequency->projectDamping = true;
      frequency->simLinearDynamics = false;
      frequency->matrixStorage = kprC_Step::MatrixStorageEnm::SOLVER_DEFAULT;
    }
    steps.InsertAfter(steps.LastStep(), metadata->Name(), step, true);
  }
  auto const expected = WithoutStepIds(model);
  for (int const revision : {203, 443, 800}) {
    OldModel const old(model, revision);
    for (char const* const name : {"kprC_Static", "kprC_Frequency", "kprC_ModalDynamics"}) {
      EXPECT_NE(old.database.FindTable(typ_ArchCompTable::FindId(name)), nullptr);
    }
    auto const opened = dbc_DecodeObject(old.File(), "old.db");
    EXPECT_TRUE(cls_EqualValues(*WithoutStepIds(*opened), *expected)) << revision;
  }
}

TEST_F(OlderRevisionsTest, OpeningLeavesTheFileAloneUntilItIsSaved) {
  std::string const path = testing::TempDir() + "old_" + std::to_string(::getpid()) + ".db";
  auto const contents = [&] {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  };
  dbc_SaveDatabase(OldModel(model_, 203).database, 203, path.c_str());
  std::string const before = contents();
  auto const opened = dbc_OpenObject(path.c_str());
  EXPECT_EQ(contents(), before);
  dbc_SaveObject(*opened, path.c_str());
  int revision = 0;
  EXPECT_NE(dbc_OpenDatabase(path.c_str(), &revision).FindTable(kprC_StaticStep::TypeId()), nullptr);
  EXPECT_EQ(revision, dbc_SchemaRevision);
  EXPECT_TRUE(cls_EqualValues(*dbc_OpenObject(path.c_str()), *opened));
  std::filesystem::remove(path);
}

TEST_F(OlderRevisionsTest, NamesTheClassAndTheAttributeThatNoChainKnows) {
  char const* const frequency = "kprC_FrequencyStep";
  constexpr unsigned int pair = kprC_TypeId("kprC_StepNameProcedurePair");
  EXPECT_EQ(RefusedWith(858, [&](auto& database) {
              Table(database, frequency).Add({{40, "colour"}, cls_AttributeType::Int});
            }),
            "class kprC_FrequencyStep has version 858 and an attribute colour that this version does not have");
  // An attribute of a later version, and one in another form.
  EXPECT_EQ(RefusedWith(858, [&](auto& database) {
              Table(database, frequency).Add({{40, "projectDamping"}, cls_AttributeType::Bool});
            }),
            "class kprC_FrequencyStep has version 858 and an attribute projectDamping that this version does not have");
  EXPECT_EQ(RefusedWith(831, [&](auto& database) {
              OldTable steps = Table(database, frequency);
              steps.Drop({"acousticCoupling"});
              steps.Add({{40, "acousticCoupling"}, cls_AttributeType::Enum});
            }),
            "class kprC_FrequencyStep has version 831 and an attribute acousticCoupling that this version "
            "does not have");
  EXPECT_EQ(RefusedWith(dbc_SchemaRevision, [&](auto& database) {
              Table(database, frequency).Add({{40, "colour"}, cls_AttributeType::Int});
            }),
            "class kprC_FrequencyStep has version 1346 and an attribute colour that this version does not have");
  EXPECT_EQ(RefusedWith(858, [&](auto& database) { Table(database, frequency).SetVersion(859); }),
            "class kprC_FrequencyStep has version 859, this release reads version 831, 858, 881, 1033, 1044, 1346");
  EXPECT_EQ(RefusedWith(800, [&](auto& database) { Table(database, "kprC_Static").SetVersion(449); }),
            "class kprC_Static has version 449, this release reads version 203, 204, 447, 448");
  EXPECT_EQ(RefusedWith(203, [&](auto& database) {
              unsigned int const quad = kbcC_TypeId("kprC_PropagatingState<kbcC_BCState>");
              OldTable steps = Table(database, "kprC_DdbAnalysisStep");
              steps.Become(kprC_TypeId("kprC_DdbAnalysisStep"), "kprC_DdbAnalysisStep", quad);
            }),
            "class kprC_DdbAnalysisStep has version 203 and another base than that version has");
  EXPECT_EQ(RefusedWith(510, [&](auto& database) { database.AddTable(0x2a00050, "kinC_Bolt", 302, 0); }),
            "class kinC_Bolt has version 302 and identifier " + std::to_string(0x2a00050) +
                ", which this release does not know");
  EXPECT_EQ(RefusedWith(510, [&](auto& database) {
              Table(database, "kprC_StepNameProcedurePair").Become(pair, "kprC_Pair", 0);
            }),
            "class kprC_Pair has version 203 and identifier " + std::to_string(pair) +
                ", which this release does not know");
  Bytes const file = dbc_AssembleFile(dbc_SchemaRevision + 1, {});
  EXPECT_NE(Refused(file).find("schema revision 2614, this release reads 2613"), std::string::npos);
}

TEST_F(OlderRevisionsTest, RefusesAModelThatWouldLoseAStep) {
  std::string const text = "row 0: the order does not name each step once";
  auto const steps = [](cls_Database& database, char const* field) -> cls_Collection& {
    bool const order = field == std::string("order#OID");
    OldTable const table =
        Table(database, order ? "kprC_StepContainer" : "mdl_IdRepositoryOfCows<cow_String, kprC_Step>");
    return database.collections[table.Words(field)[0]];
  };
  for (int const revision : {203, 800, 831, dbc_SchemaRevision}) {
    SCOPED_TRACE(revision);
    EXPECT_EQ(RefusedWith(revision, [&](auto& database) { --steps(database, "IDToObj#OID").count; }), text);
    EXPECT_EQ(RefusedWith(revision, [&](auto& database) { --steps(database, "nameToID#OID").count; }), text);
    EXPECT_EQ(RefusedWith(revision, [&](auto& database) {
                std::uint32_t* const names = &database.words[steps(database, "order#OID").first];
                names[1] = names[2];
              }),
              text);
    EXPECT_EQ(RefusedWith(revision, [&](auto& database) {
                Table(database, "kprC_StepContainer").Words("order#OID") = {cls_NoRow};
              }),
              text);
  }
  // A step that was of a class which has gone.
  EXPECT_EQ(RefusedWith(800, [&](auto& database) {
              unsigned int const connector = typ_ArchCompTable::FindId("kcnC_Connector");
              database.AddTable(connector, "kcnC_Connector", 203, 0).NewRow(77);
              cls_Collection const& map = steps(database, "IDToObj#OID");
              std::uint32_t* const last = &database.words[map.first + 3 * (map.count - 1)];
              last[1] = connector;
              last[2] = 0;
            }),
            text);
  EXPECT_EQ(RefusedWith(800, [&](auto& database) { Table(database, "kprC_StepContainer").Drop({"order"}); }), text);
  EXPECT_EQ(RefusedWith(800, [&](auto& database) {
              OldTable const analysis = Table(database, "kprC_AnalysisStep");
              for (char const* const field : {"procedure#ClassID", "procedure#OID"}) {
                analysis.Words(field)[1] = analysis.Words(field)[0];
              }
            }),
            "row 1: holds a procedure that belongs to another step");
}

// A class that has gone without a successor: its table is dropped whatever it holds, and so are references to its rows.
TEST_F(OlderRevisionsTest, DropsWhatHasGone) {
  OldModel old(model_, 510);
  cls_Database& database = old.database;
  unsigned int const connector = typ_ArchCompTable::FindId("kcnC_Connector");
  cls_Table& table = database.AddTable(connector, "kcnC_Connector", 203, 0);
  table.AddColumns({{0, "stiffness"}, cls_AttributeType::Double});
  table.NewRow(77);
  database.Complete();
  // One more entry in the list of contact controls of an analysis step, in front of nothing else.
  cls_Table& steps = *database.FindTable(kprC_TypeId("kprC_AnalysisStep"));
  auto const column = static_cast<std::size_t>(steps.FindColumn("contactControls#OID"));
  cls_Collection& list = database.collections[steps.columns[column].words[0]];
  list.first = static_cast<std::uint32_t>(database.words.size());
  list.count = 1;
  database.words.insert(database.words.end(), {connector, 0});
  auto const opened = dbc_DecodeObject(old.File(), "old.db");
  EXPECT_TRUE(cls_EqualValues(*opened, *dbc_DecodeObject(dbc_EncodeObject(model_), "new.db")));
}

TEST_F(OlderRevisionsTest, ADamagedFileIsRefusedOrSound) {
  for (int const revision : {203, 881}) {
    Bytes const file = OldModel(model_, revision).File();
    for (std::size_t at = 0; at < file.size(); at += 3) {
      Bytes damaged = file;
      damaged[at] ^= 0x5a;
      EXPECT_TRUE(Refused(damaged).starts_with("old.db: section ")) << at;
    }
    // Under right checksums, as somebody would make it who knows the form of the file.
    std::vector<dbc_SectionContent> contents;
    for (dbc_Section const& section : dbc_ListSections(file, "x")) {
      auto const first = file.begin() + static_cast<std::ptrdiff_t>(section.offset);
      contents.push_back({section.kind, Bytes(first, first + static_cast<std::ptrdiff_t>(section.length))});
    }
    for (std::size_t section = 0; section < contents.size(); ++section) {
      for (std::size_t at = 0; at < contents[section].bytes.size(); ++at) {
        std::uint8_t& byte = contents[section].bytes[at];
        std::uint8_t const whole = byte;
        int const values[] = {0x00, 0xff, whole ^ 0x01};
        byte = static_cast<std::uint8_t>(values[at % 3]);
        try {
          auto const opened = dbc_DecodeObject(dbc_AssembleFile(revision, contents), "old.db");
          dbc_EncodeObject(*opened);
        } catch (TVOBasException const&) {
          // Any refusal will do; what is opened must be sound.
        }
        byte = whole;
      }
    }
  }
}
