#include <string>

#include "cls_AttributeTable.h"
#include "cls_Registrar.h"
#include "cls_Visitors.h"
#include "nex_Exception.h"

void cls_RefuseStored(std::string_view place, std::uint32_t row, std::string_view why) {
  std::string text(place);
  if (row != cls_NoRow) {
    text += ", row " + std::to_string(row);
  }
  text += ": ";
  text += why;
  nex_PrimException<cow_String, 2>(cow_String(text)).Throw(__FILE__, __LINE__);
}

cls_ReadSession::cls_ReadSession(cls_Database const& database) : database_(database), states_(database.tables.size()) {
  for (auto const& table : database.tables) {
    StateOf(*table).references.resize(table->Rows());
  }
  for (auto const& table : database.tables) {
    CheckTable(*table);
  }
  for (std::size_t i = 0; i < database.collections.size(); ++i) {
    CheckCollection(database.collections[i], static_cast<std::uint32_t>(i));
  }
  if (database.rootRow != cls_NoRow) {
    CountReference(database.rootTypeId, database.rootRow, "root", cls_NoRow);
  }
}

cls_ReadSession::~cls_ReadSession() = default;

void cls_ReadSession::SetTarget(unsigned int classId) {
  cls_Table const* const table = database_.FindTable(classId);
  target_.classId = classId;
  target_.rows = table == nullptr ? 0 : table->Rows();
  target_.references = table == nullptr ? nullptr : StateOf(*table).references.data();
}

void cls_ReadSession::RefuseReference(std::string_view place, std::uint32_t fromRow) {
  cls_RefuseStored(place, fromRow, "refers to a row that is not there");
}

void cls_ReadSession::CheckColumn(cls_Table const& table, std::size_t c) {
  std::string_view const place = table.name.View();
  cls_Column const& column = table.columns[c];
  auto const forRows = [&](auto check) {
    for (std::uint32_t row = 0; row < column.words.size(); ++row) {
      check(row, column.words[row]);
    }
  };
  switch (column.kind) {
    case cls_CellKind::String:
      forRows([&](std::uint32_t row, std::uint32_t word) {
        if (word >= database_.strings.size()) {
          cls_RefuseStored(place, row, "refers to a text that is not there");
        }
      });
      break;
    case cls_CellKind::Row:
      forRows([&](std::uint32_t row, std::uint32_t word) {
        if (word != cls_NoRow) {
          CountReference(column.target, word, place, row);
        }
      });
      break;
    case cls_CellKind::RowOfClass: {
      mem_Array<std::uint32_t> const& classes = table.columns[c - 1].words;
      forRows([&](std::uint32_t row, std::uint32_t word) {
        if (word != cls_NoRow) {
          CountReference(classes[row], word, place, row);
        }
      });
      break;
    }
    case cls_CellKind::Collection:
      forRows([&](std::uint32_t row, std::uint32_t word) {
        if (word != cls_NoRow && word >= database_.collections.size()) {
          cls_RefuseStored(place, row, "refers to a collection that is not there");
        }
      });
      break;
    default:
      break;
  }
}

void cls_ReadSession::CheckTable(cls_Table const& table) {
  for (cls_Column const& column : table.columns) {
    std::size_t const cells = column.kind == cls_CellKind::Double ? column.doubles.size() : column.words.size();
    if (cells != table.Rows()) {
      cls_RefuseStored(table.name.View(), cls_NoRow, "a column has not one cell a row");
    }
  }
  for (std::size_t c = 0; c < table.columns.size(); ++c) {
    CheckColumn(table, c);
  }
}

void cls_ReadSession::CheckCollection(cls_Collection const& collection, std::uint32_t number) {
  constexpr char const* place = "collections";
  std::size_t const heap =
      collection.kind == cls_CollectionType::DoubleList ? database_.doubles.size() : database_.words.size();
  std::uint64_t const width = cls_ElementWords(collection.kind);
  if (collection.first + width * collection.count > heap) {
    cls_RefuseStored(place, number, "reaches past its elements");
  }
  for (std::uint32_t i = 0; i < collection.count; ++i) {
    std::size_t const at = collection.first + static_cast<std::size_t>(width) * i;
    auto const text = [&](std::size_t offset) {
      if (database_.words[at + offset] >= database_.strings.size()) {
        cls_RefuseStored(place, number, "refers to a text that is not there");
      }
    };
    switch (collection.kind) {
      case cls_CollectionType::ObjectList:
        CountReference(database_.words[at], database_.words[at + 1], place, number);
        break;
      case cls_CollectionType::ObjectMap:
        text(0);
        [[fallthrough]];
      case cls_CollectionType::ObjectMapById:
        CountReference(database_.words[at + 1], database_.words[at + 2], place, number);
        break;
      case cls_CollectionType::StringList:
      case cls_CollectionType::NameToId:
        text(0);
        break;
      case cls_CollectionType::NameToName:
        text(0);
        text(1);
        break;
      case cls_CollectionType::DoubleListList:
      case cls_CollectionType::IntListList:
        // An inner list stands before its outer one, so that lists cannot hold each other.
        if (database_.words[at] >= number) {
          cls_RefuseStored(place, number, "holds a list that is not there");
        }
        break;
      default:
        break;
    }
  }
}

void cls_ReadSession::Resolve(cls_AttributeTable const& attributes, cls_Table const& table, TableState& state) {
  state.resolved = true;
  cls_Database scratch;
  cls_Table const& present = attributes.AddTo(scratch);
  for (cls_Column const& column : present.columns) {
    int const stored = table.FindColumn(column.name.View());
    bool const fits = stored >= 0 && table.columns[static_cast<std::size_t>(stored)].kind == column.kind;
    state.columns.push_back(fits ? stored : -1);
  }
}

cls_ReadSession::Shared* cls_ReadSession::SharedOf(TableState& state, std::uint32_t row) { return &state.shared[row]; }

cls_ReadVisitor::cls_ReadVisitor(cls_ReadSession& session) : session_(&session) {
  cls_Database const& database = session.Database();
  table_ = database.FindTable(database.rootTypeId);
  row_ = database.rootRow;
  if (table_ == nullptr || row_ >= table_->Rows()) {
    cls_RefuseStored("root", cls_NoRow, "refers to a row that is not there");
  }
}

cls_ReadVisitor::cls_ReadVisitor(cls_ReadVisitor const& outer, cls_FieldHandle const& key) : session_(outer.session_) {
  if (!outer.HasRow()) {
    return;
  }
  std::vector<cls_Column> const& columns = outer.table_->columns;
  int const column = outer.table_->FindColumn(std::string(key.name.View()) + cls_ClassIdSuffix);
  auto const at = static_cast<std::size_t>(column);
  bool const isReference = column >= 0 && at + 1 < columns.size() &&
                           columns[at].kind == cls_CellKind::ClassId && columns[at + 1].kind == cls_CellKind::RowOfClass;
  if (isReference && columns[at + 1].words[outer.row_] != cls_NoRow) {
    table_ = session_->Database().FindTable(columns[at].words[outer.row_]);
    row_ = columns[at + 1].words[outer.row_];
  }
}

cls_Uid cls_ReadVisitor::GetUid() const {
  std::uint64_t const stored = table_ == nullptr ? 0 : table_->uids[row_];
  return stored == 0 ? cls_Uid() : cls_Uid::Stored(stored);
}

cls_Column const* cls_ReadVisitor::Field(cls_FieldHandle const& key) const {
  int const found = table_ == nullptr ? -1 : table_->FindColumn(key.name.View());
  return found < 0 ? nullptr : &table_->columns[static_cast<std::size_t>(found)];
}

void cls_ReadVisitor::Get(cls_FieldHandle const& key, bool& value) const {
  if (cls_Column const* cells = Field(key); cells != nullptr && cells->kind == cls_CellKind::Int) {
    value = cells->words[row_] != 0;
  }
}
void cls_ReadVisitor::Get(cls_FieldHandle const& key, int& value) const {
  if (cls_Column const* cells = Field(key); cells != nullptr && cells->kind == cls_CellKind::Int) {
    value = static_cast<int>(cells->words[row_]);
  }
}
void cls_ReadVisitor::Get(cls_FieldHandle const& key, double& value) const {
  if (cls_Column const* cells = Field(key); cells != nullptr && cells->kind == cls_CellKind::Double) {
    value = cells->doubles[row_];
  }
}
void cls_ReadVisitor::Get(cls_FieldHandle const& key, cow_String& value) const {
  if (cls_Column const* cells = Field(key); cells != nullptr && cells->kind == cls_CellKind::String) {
    value = session_->Database().String(cells->words[row_]);
  }
}

cls_ReadVisitor cls_ReadVisitor::BasePart() const {
  cls_Column const* const cells = Cells(0);
  std::uint32_t const row = cells == nullptr ? cls_NoRow : cells->words[row_];
  if (row == cls_NoRow) {
    Refuse("the row of the base class is missing");
  }
  return {*session_, session_->TableOf(cells->target), row};
}

cls_ReadVisitor cls_ReadVisitor::Enter(int column, unsigned int typeId) const {
  cls_Column const* const rows = Cells(column + 1);
  cls_Column const* const classes = Cells(column);
  if (rows == nullptr || classes == nullptr || rows->words[row_] == cls_NoRow) {
    return {*session_, nullptr, cls_NoRow};
  }
  return EnterRow(classes->words[row_], rows->words[row_], typeId);
}

cls_ReadVisitor cls_ReadVisitor::EnterRow(unsigned int classId, std::uint32_t row, unsigned int typeId) const {
  if (classId != typeId && !cls_ClassRegistrar::InheritanceCheck(classId, typeId)) {
    Refuse("refers to an object of another kind");
  }
  return {*session_, session_->TableOf(classId), row};
}

cls_Collection const* cls_ReadVisitor::Collection(int column, cls_CollectionType kind) const {
  cls_Column const* const cells = Cells(column);
  if (cells == nullptr || cells->words[row_] == cls_NoRow) {
    return nullptr;
  }
  cls_Collection const& found = session_->Database().collections[cells->words[row_]];
  if (found.kind != kind) {
    Refuse("refers to a collection of another kind");
  }
  return &found;
}

void cls_ReadVisitor::Refuse(std::string_view why) const {
  cls_RefuseStored(table_ == nullptr ? std::string_view("root") : table_->name.View(), row_, why);
}
