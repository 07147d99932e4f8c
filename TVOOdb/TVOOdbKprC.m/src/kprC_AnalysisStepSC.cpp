#include "dbc_Utils.h"
#include "kprC_AnalysisStep.h"
#include "kprC_oldLinks.h"

namespace {

/// How the one setting of the solver came to be two. Other names than these become `otherSolver`.
struct SolverSplit {
  char const* old;
  char const* solver;
  char const* storage;
};
constexpr SolverSplit solverSplits[] = {
    {"DIRECT_SYMMETRIC", "DIRECT", "SYMMETRIC"},
    {"SYMMETRIC", "DIRECT", "SYMMETRIC"},
    {"DIRECT_UNSYMMETRIC", "DIRECT", "UNSYMMETRIC"},
    {"UNSYMMETRIC", "DIRECT", "UNSYMMETRIC"},
    {"DDM_ITERATIVE", "ITERATIVE", "SYMMETRIC"},
};
constexpr SolverSplit otherSolver = {"", "DIRECT", "SOLVER_DEFAULT"};

SolverSplit const& SplitOf(cow_String const& old) {
  for (SolverSplit const& split : solverSplits) {
    if (old == split.old) return split;
  }
  return otherSolver;
}

}  // namespace

void* kprC_AnalysisStep_831::Upgrade_831_867(dbc_Row const&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("convertSDI"), "PROPAGATED");
  return nullptr;
}

void* kprC_AnalysisStep_867::Upgrade_867_1389(dbc_Row const& oldRow, dbc_Row& newRow, int) {
  rfm_FieldHandle const solver("matrixSolver");
  SolverSplit const& split = oldRow.HasField(solver) ? SplitOf(oldRow.GetString(solver)) : otherSolver;
  newRow.SetString(solver, split.solver);
  newRow.SetString(rfm_FieldHandle("matrixStorage"), split.storage);
  return nullptr;
}

void* kprC_AnalysisStep_1389::Upgrade_1389_2001(dbc_Row const& oldRow, dbc_Row& newRow, int) {
  constexpr char const* key = "activateElemContainer";
  dbc_Utils const& utils = dbc_Utils::Instance();
  if (utils.GetObj(oldRow, key).row != cls_NoRow) return nullptr;
  dbc_OutputDatabase& output = dbc_DatabaseConverterHolder::Instance().GetDatabaseConverter().Output();
  dbc_Row const base = output.GetOutputTable(mdl_Repository::TypeId()).NewRow(false);
  dbc_Row container = output.GetOutputTable(mdl_ExtensionRepository::TypeId()).NewRow(true);
  container.SetInt(rfm_FieldHandle(cls_BaseClassField), static_cast<int>(base.Number()));
  utils.SetObj(newRow, key, {mdl_ExtensionRepository::TypeId(), container.Number()});
  return nullptr;
}

void* kprC_AnalysisStep_2001::Upgrade_2001_2511(dbc_Row const&, dbc_Row& newRow, int) {
  dbc_Utils::Instance().SetNewAttributeMapInOutputDatabase(newRow, "scc");
  return nullptr;
}

void* kprC_AnalysisStep_2511::Upgrade_2511_2608(dbc_Row const&, dbc_Row& newRow, int) {
  dbc_Utils::Instance().SetNewAttributeMapInOutputDatabase(newRow, "scc2");
  return nullptr;
}
