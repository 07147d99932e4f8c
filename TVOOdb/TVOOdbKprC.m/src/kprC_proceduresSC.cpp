#include <unordered_map>
#include <vector>

#include "dbc_Utils.h"
#include "kprC_OldShapes.h"
#include "kprC_oldLinks.h"
#include "kprC_renamedClasses.h"

namespace {

// Until revision 831 an analysis step held its procedure, an object of a class of its own; since then the procedure is
// a step that derives from kprC_AnalysisStep.

constexpr unsigned int analysisStepId = kprC_TypeId("kprC_AnalysisStep");
constexpr unsigned int formerAnalysisStepId = kprC_TypeId("kprC_DdbAnalysisStep");
constexpr unsigned int stepRepositoryId = kprC_TypeId("mdl_IdRepositoryOfCows<cow_String, kprC_Step>");
/// A database that has this table was brought to the new steps by another way.
constexpr unsigned int otherWayId = 0x220006;

dbc_DatabaseConverter& Converter() { return dbc_DatabaseConverterHolder::Instance().GetDatabaseConverter(); }

/// The step's class of a former procedure class, 0 for any other class.
unsigned int NewProcedureId(unsigned int classId) {
  for (dbc_RenamedClass const& each : kprC_RenamedClasses) {
    if (each.oldId == classId && each.finish != nullptr) return each.newId;
  }
  return 0;
}

/// What a reference to a step is to be: of a former analysis step, the row of its procedure under the new class.
dbc_Target NewStep(dbc_Target step) {
  if (step.classId != analysisStepId && step.classId != formerAnalysisStepId) return step;
  dbc_Table const analysisSteps = Converter().Input().GetInputTable(step.classId);
  if (analysisSteps.IsNull()) return step;
  dbc_Target const procedure = dbc_Utils::Instance().GetObj(analysisSteps.Row(step.row), "procedure");
  unsigned int const newId = NewProcedureId(procedure.classId);
  return newId == 0 ? step : dbc_Target{newId, procedure.row};
}

/// The steps of the model's container by the numbers of their names, one place for each text of the database.
std::vector<dbc_Target> StepsByName() {
  cls_Database const& database = Converter().Database();
  std::vector<dbc_Target> steps(database.strings.size());
  dbc_Table const repositories = Converter().Output().GetOutputTable(stepRepositoryId);
  rfm_FieldHandle const names("nameToID#OID");
  for (std::uint32_t row = 0; repositories.HasField(names) && row < repositories.Rows(); ++row) {
    dbc_ObjectMap const objects(repositories.Row(row), rfm_FieldHandle("IDToObj#OID"));
    std::unordered_map<std::uint32_t, dbc_Target> byId;
    for (std::uint32_t entry = 0; entry < objects.Size(); ++entry) byId[objects.Key(entry)] = objects.Target(entry);
    auto const number = static_cast<std::uint32_t>(repositories.Row(row).GetInt(names));
    if (number == cls_NoRow || database.collections[number].kind != cls_CollectionType::NameToId) continue;
    cls_Collection const& nameToId = database.collections[number];
    for (std::uint32_t entry = 0; entry < nameToId.count; ++entry) {
      std::size_t const at = nameToId.first + std::size_t{2} * entry;
      auto const found = byId.find(database.words[at + 1]);
      if (found != byId.end()) steps[database.words[at]] = NewStep(found->second);
    }
  }
  return steps;
}

/// The step's class of a former procedure class, kept for the rows that follow: most are of few classes.
struct NewProcedure {
  unsigned int oldId = 0;
  unsigned int newId = 0;

  void Find(unsigned int classId) {
    if (classId == oldId) return;
    oldId = classId;
    newId = NewProcedureId(classId);
  }
};

}  // namespace

void kprC_TieToAnalysisSteps(dbc_DatabaseConverter& converter, unsigned int oldId, dbc_Table& procedures) {
  dbc_InputDatabase const& input = converter.Input();
  cls_Column& base = *procedures.Find(rfm_FieldHandle(cls_BaseClassField));
  // What derives from the analysis step already, under its former name, keeps its own.
  bool const isStep = input.GetInputTable(oldId).Cells().parentTypeId == analysisStepId;
  if (!isStep) std::fill(base.words.begin(), base.words.end(), cls_NoRow);
  dbc_Table const analysisSteps =
      input.GetInputTable(input.HasInputTable(analysisStepId) ? analysisStepId : formerAnalysisStepId);
  if (analysisSteps.IsNull()) return;
  cls_Column const* const classes = analysisSteps.Find(rfm_FieldHandle("procedure#ClassID"));
  cls_Column const* const rows = analysisSteps.Find(rfm_FieldHandle("procedure#OID"));
  if (classes == nullptr || rows == nullptr) return;
  for (std::uint32_t row = 0; row < analysisSteps.Rows(); ++row) {
    std::uint32_t const procedure = rows->words[row];
    if (classes->words[row] != oldId || procedure >= procedures.Rows()) continue;
    if (base.words[procedure] != cls_NoRow) {
      cls_RefuseStored(analysisSteps.Cells().name.View(), row, "holds a procedure that belongs to another step");
    }
    base.words[procedure] = row;
  }
}

void* kprC_UpgradeProcedures(dbc_Table const&, dbc_Table& newTable) {
  cls_Column* const classes = newTable.Find(rfm_FieldHandle("procedure#ClassID"));
  cls_Column* const rows = newTable.Find(rfm_FieldHandle("procedure#OID"));
  cls_Column const* const names = newTable.Find(rfm_FieldHandle("stepName"));
  if (classes == nullptr || rows == nullptr) return nullptr;
  std::vector<dbc_Target> byName;
  NewProcedure procedure;
  for (std::uint32_t row = 0; row < newTable.Rows(); ++row) {
    std::uint32_t& place = rows->words[row];
    if (place == cls_NoRow) continue;
    procedure.Find(classes->words[row]);
    if (procedure.newId == 0) continue;
    classes->words[row] = procedure.newId;
    if (names == nullptr) continue;
    if (byName.empty()) byName = StepsByName();  // has a place for the empty text at least
    dbc_Target const& step = byName[names->words[row]];
    if (step.row == cls_NoRow) continue;
    classes->words[row] = step.classId;
    place = step.row;
  }
  return nullptr;
}

void* kprC_StepContainer_800::Upgrade_800_831(dbc_Row const&, dbc_Row& newRow, int) {
  rfm_FieldHandle const base(cls_BaseClassField);
  bool const hasBase = newRow.HasField(base) && newRow.GetInt(base) != -1;
  if (Converter().Input().HasInputTable(otherWayId) || !hasBase) return nullptr;
  dbc_Row const repository = Converter().Output().GetOutputTable(stepRepositoryId).Row(
      static_cast<std::uint32_t>(newRow.GetInt(base)));
  dbc_ObjectMap steps(repository, rfm_FieldHandle("IDToObj#OID"));
  for (std::uint32_t entry = 0; entry < steps.Size(); ++entry) steps.SetTarget(entry, NewStep(steps.Target(entry)));
  return nullptr;
}
