#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "cls_Visitors.h"
#include "dbc_ModelFile.h"
#include "typ_ArchCompTable.h"

// Models as older releases stored them. Tables of today are laid down again in the shapes that they had at a revision;
// nothing here asks the old classes of the library, whose links the tests compare with this.

/// Tables that lose, get and change fields, by hand.
class OldTable {
 public:
  OldTable(cls_Database& database, cls_Table& table) : database_(database), table_(&table) {}

  std::uint32_t Rows() const { return table_->Rows(); }
  bool Has(std::string_view field) const { return table_->FindColumn(field) >= 0; }
  mem_Array<std::uint32_t>& Words(std::string_view field) const {
    return table_->columns[static_cast<std::size_t>(table_->FindColumn(field))].words;
  }
  mem_Array<double>& Doubles(std::string_view field) const {
    return table_->columns[static_cast<std::size_t>(table_->FindColumn(field))].doubles;
  }
  std::string Text(std::string_view field, std::uint32_t row) const {
    return database_.String(Words(field)[row]).CStr();
  }
  void SetText(std::string_view field, std::uint32_t row, std::string_view text) const {
    Words(field)[row] = database_.StringNumber(text);
  }

  void Drop(std::initializer_list<std::string_view> keys) {
    for (std::string_view const key : keys) Rebuild(table_->typeId, table_->name, table_->parentTypeId, key);
  }
  /// One more attribute; its cells have their default.
  void Add(cls_DeclaredAttribute const& attribute) {
    table_->AddColumns(attribute);
    table_->Complete();
  }
  /// Gives the table another class; without a base it loses its first column.
  void Become(unsigned int typeId, cow_String const& name, unsigned int parent) {
    Rebuild(typeId, name, parent, std::string_view());
  }
  void SetVersion(int version) { table_->version = version; }

 private:
  void Rebuild(unsigned int typeId, cow_String const& name, unsigned int parent, std::string_view without) {
    std::unique_ptr<cls_Table> const old = database_.Remove(table_->typeId);
    cls_Table& table = database_.AddTable(typeId, name, old->version, parent);
    table.uids = old->uids;
    auto const move = [&](std::size_t from, std::size_t to) {
      table.columns[to].words = std::move(old->columns[from].words);
      table.columns[to].doubles = std::move(old->columns[from].doubles);
    };
    std::size_t from = old->parentTypeId == 0 ? 0 : 1;
    if (parent != 0 && from == 1) move(0, 0);
    for (cls_DeclaredAttribute const& attribute : old->declared) {
      cls_Table scratch(0, cow_String(), 0, 0);
      scratch.AddColumns(attribute);
      if (attribute.field.name.View() != without) {
        auto const to = static_cast<std::size_t>(table.AddColumns(attribute));
        for (std::size_t i = 0; i < scratch.columns.size(); ++i) move(from + i, to + i);
      }
      from += scratch.columns.size();
    }
    table.Complete();
    table_ = &table;
  }

  cls_Database& database_;
  cls_Table* table_;
};

/// A class's numbers, its present version the last of them.
struct OldNumbers {
  char const* name;
  std::vector<int> versions;
};

/// Lays a model down as it stood at a revision.
class OldModel {
 public:
  OldModel(cls_Persistent const& model, int revision) : revision_(revision) {
    cls_WriteSession session(database);
    model.DBWrite(cls_WriteVisitor(session));
    database.Complete();
    AgeSteps();
    if (revision_ < 831) PutProceduresIntoSteps();
    if (revision_ < 510) TakeBaseFromContainers();
    for (OldNumbers const& each : numbers_) SetVersion(each);
    if (revision_ < 207) GiveFormerNames();
  }

  /// The class that a step of that class was a procedure of, 0 if there was none.
  static unsigned int FormerProcedure(unsigned int stepId) {
    std::string const step = typ_ArchCompTable::GetName(stepId);
    bool const turned = step == "kprC_TempDisplacementDynamicsStep";
    return Id(turned ? "kprC_DynamicTempDisplacement" : step.substr(0, step.size() - std::string_view("Step").size()));
  }
  std::vector<std::uint8_t> File() const { return dbc_EncodeDatabase(database, revision_); }

  cls_Database database;

 private:
  static unsigned int Id(std::string const& name) { return typ_ArchCompTable::FindId(name.c_str()); }

  template <class Change>
  void In(std::string const& name, Change change) {
    if (cls_Table* const found = database.FindTable(Id(name))) {
      OldTable table(database, *found);
      change(table);
    }
  }
  void SetVersion(OldNumbers const& each) {
    In(each.name, [&](OldTable& table) {
      int version = each.versions.front();
      for (int const number : each.versions) version = number <= revision_ ? number : version;
      table.SetVersion(version);
    });
  }

  void AgeSteps() {
    In("kprC_AnalysisStep", [&](OldTable& table) {
      if (revision_ < 2608) table.Drop({"scc2"});
      if (revision_ < 2511) table.Drop({"scc"});
      if (revision_ < 2001) table.Drop({"activateElemContainer"});
      if (revision_ < 1389) {
        for (std::uint32_t row = 0; row < table.Rows(); ++row) {
          std::string const storage = table.Text("matrixStorage", row);
          bool const iterative = table.Text("matrixSolver", row) == "ITERATIVE";
          bool const standard = storage == "SOLVER_DEFAULT";
          table.SetText("matrixSolver", row, iterative ? "DDM_ITERATIVE" : standard ? "DIRECT" : "DIRECT_" + storage);
        }
        table.Drop({"matrixStorage"});
      }
      if (revision_ < 867) table.Drop({"convertSDI"});
    });
    In("kprC_FrequencyStep", [&](OldTable& table) {
      if (revision_ < 1044) table.Drop({"simLinearDynamics"});
      if (revision_ < 1033) {
        mem_Array<std::uint32_t> off(table.Rows());
        for (std::uint32_t row = 0; row < table.Rows(); ++row) {
          off[row] = table.Text("acousticCoupling", row) == "AC_OFF";
        }
        table.Drop({"projectDamping", "acousticRangeFactor", "acousticCoupling"});
        table.Add({{13, "acousticCoupling"}, cls_AttributeType::Int});
        for (std::uint32_t row = 0; row < table.Rows(); ++row) table.Words("acousticCoupling")[row] = 1 - off[row];
      }
      if (revision_ < 881) {
        for (double& value : table.Doubles("propertyEvaluationFrequency")) value = value < 1e300 ? value : 0.0;
      }
      if (revision_ < 858) {
        table.Drop({"substructureCutoffMultiplier", "firstCutoffMultiplier", "secondCutoffMultiplier",
                    "residualModeDof", "residualModeRegion", "limitSavedEigenvectorRegion"});
      }
    });
    In("kprC_Step", [&](OldTable& table) {
      if (revision_ < 1327) table.Drop({"suppress"});
      if (revision_ < 409) std::fill(table.Words("stepId").begin(), table.Words("stepId").end(), 0u);
    });
  }

  /// A step "kprC_XStep" was a procedure "kprC_X" in an analysis step; conditions and lists of steps held that.
  void PutProceduresIntoSteps() {
    cls_Table* const steps = database.FindTable(Id("kprC_AnalysisStep"));
    if (steps == nullptr) return;
    OldTable analysis(database, *steps);
    analysis.Add({{99, "procedure"}, cls_AttributeType::Object, Id("kprC_Procedure")});
    std::map<std::uint32_t, unsigned int> formerIds;
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> analysisRows;
    std::vector<unsigned int> stepIds;
    for (auto const& table : database.tables) {
      if (table->parentTypeId == steps->typeId && FormerProcedure(table->typeId) != 0) stepIds.push_back(table->typeId);
    }
    for (unsigned int const stepId : stepIds) {
      unsigned int const former = FormerProcedure(stepId);
      formerIds[stepId] = former;
      OldTable table(database, *database.FindTable(stepId));
      for (std::uint32_t row = 0; row < table.Rows(); ++row) {
        std::uint32_t const base = table.Words(cls_BaseClassField)[row];
        analysisRows[{stepId, row}] = base;
        analysis.Words("procedure#ClassID")[base] = former;
        analysis.Words("procedure#OID")[base] = row;
      }
      table.Become(former, typ_ArchCompTable::GetName(former), 0);
    }
    for (OldNumbers const& procedure : procedures_) SetVersion(procedure);
    for (auto const& table : database.tables) {
      for (cls_Column& column : table->columns) {
        for (std::uint32_t& word : column.words) {
          auto const former = column.kind == cls_CellKind::ClassId ? formerIds.find(word) : formerIds.end();
          if (former != formerIds.end()) word = former->second;
        }
      }
    }
    for (cls_Collection const& map : database.collections) {
      for (std::uint32_t entry = 0; map.kind == cls_CollectionType::ObjectMapById && entry < map.count; ++entry) {
        std::uint32_t* const words = &database.words[map.first + 3 * entry];
        auto const row = analysisRows.find({words[1], words[2]});
        if (row == analysisRows.end()) continue;
        words[1] = Id("kprC_AnalysisStep");
        words[2] = row->second;
      }
    }
  }

  void TakeBaseFromContainers() {
    std::string const name = "kprC_PropagatingContainer<kbcC_BC>";
    In(name, [&](OldTable& table) { table.Become(Id(name), cow_String(name), 0); });
  }

  void GiveFormerNames() {
    std::map<std::uint32_t, unsigned int> formerIds;
    for (std::string const kind : {"Step", "AnalysisStep", "InitialStep"}) {
      formerIds[Id("kprC_" + kind)] = Id("kprC_Ddb" + kind);
      In("kprC_" + kind, [&](OldTable& table) {
        std::string const former = "kprC_Ddb" + kind;
        table.SetVersion(203);
        table.Become(Id(former), cow_String(former), kind == "Step" ? 0 : Id("kprC_DdbStep"));
      });
    }
    std::string const quad = "kprC_PropagatingState<kbcC_BCState>";
    In(quad, [&](OldTable& table) { table.Become(Id(quad), "kbcC_StateQuad", 0); });
    for (cls_Collection const& map : database.collections) {
      for (std::uint32_t entry = 0; map.kind == cls_CollectionType::ObjectMapById && entry < map.count; ++entry) {
        std::uint32_t& classId = database.words[map.first + 3 * entry + 1];
        if (auto const former = formerIds.find(classId); former != formerIds.end()) classId = former->second;
      }
    }
  }

  int revision_;
  std::vector<OldNumbers> const procedures_ = {
      {"kprC_Anneal", {203, 204, 307}},
      {"kprC_Buckle", {203, 204}},
      {"kprC_ComplexFrequency", {307, 327, 441}},
      {"kprC_CoupledTempDisplacement", {203, 204, 447, 448}},
      {"kprC_CoupledThermalElectric", {203, 502}},
      {"kprC_DynamicTempDisplacement", {203}},
      {"kprC_ExplicitDynamics", {203}},
      {"kprC_Frequency", {203, 204, 205, 443}},
      {"kprC_Geostatic", {203, 204, 447, 448}},
      {"kprC_HeatTransfer", {203}},
      {"kprC_ImplicitDynamics", {203}},
      {"kprC_MassDiffusion", {203}},
      {"kprC_ModalDynamics", {203, 445}},
      {"kprC_RandomResponse", {203, 204, 445}},
      {"kprC_ResponseSpectrum", {203, 204, 445}},
      {"kprC_Soils", {203, 204, 447, 448}},
      {"kprC_Static", {203, 204, 447, 448}},
      {"kprC_StaticLinearPerturbation", {203, 204}},
      {"kprC_StaticRiks", {203, 204, 447, 448}},
      {"kprC_SteadyStateDirect", {203, 204, 436}},
      {"kprC_SteadyStateModal", {203, 204, 436, 445}},
      {"kprC_SteadyStateSubspace", {445}},
      {"kprC_SubspaceDynamics", {203}},
      {"kprC_SubstructureGenerate", {203, 403, 417, 420}},
      {"kprC_UsaAddedMassGeneration", {203, 800}},
      {"kprC_Visco", {203, 204, 447, 448}},
  };
  std::vector<OldNumbers> const numbers_ = {
      {"kbcC_BC", {203, 871, 1327}},
      {"kbcC_ConnectorBC", {203, 860, 1631}},
      {"kprC_AnalysisStep", {302, 328, 831, 867, 1389, 2001, 2511, 2608}},
      {"kprC_FrequencyStep", {831, 858, 881, 1033, 1044, 1346}},
      {"kprC_PropagatingContainer<kbcC_BC>", {203, 510}},
      {"kprC_PropagatingState<kbcC_BCState>", {203, 831}},
      {"kprC_StaticStep", {831, 851, 1035, 1563}},
      {"kprC_Step", {207, 439, 1327}},
      {"kprC_StepContainer", {203, 800, 831}},
      {"kprC_StepNameProcedurePair", {203, 831}},
  };
};
