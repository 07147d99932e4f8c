#include "dbc_Row.h"

#include <string>

#include "cls_Visitors.h"

dbc_Row dbc_Table::Row(std::uint32_t row) const { return {*this, row}; }

dbc_Row dbc_Table::NewRow(bool ofObject) {
  std::uint32_t const row = cells_->NewRow(ofObject ? cls_Uid::AllocateUid() : 0);
  cells_->Complete();
  return {*this, row};
}

cls_Column* dbc_Table::Find(rfm_FieldHandle const& field) const {
  auto& columns = cells_->columns;
  auto at = static_cast<std::size_t>(field.column);
  if (field.column < 0 || at >= columns.size() || columns[at].name.View() != field.name) {
    field.column = cells_->FindColumn(field.name);
    at = static_cast<std::size_t>(field.column);
  }
  return field.column < 0 ? nullptr : &columns[at];
}

cls_Column& dbc_Table::Have(rfm_FieldHandle const& field) const {
  if (cls_Column* const found = Find(field)) {
    return *found;
  }
  if (shape_ != nullptr) {
    for (cls_DeclaredAttribute const& attribute : shape_->Declared()) {
      cls_Table scratch(0, cow_String(), 0, 0);
      scratch.AddColumns(attribute);
      if (scratch.FindColumn(field.name) >= 0) {
        cells_->AddColumns(attribute);
        cells_->Complete();
        return *Find(field);
      }
    }
  }
  cls_RefuseStored(cells_->name.View(), cls_NoRow, std::string("has no field ") + field.name);
}

void dbc_Row::Refuse(rfm_FieldHandle const& field) const {
  cls_RefuseStored(table_.Cells().name.View(), row_, std::string("has no such field ") + field.name);
}

cls_Column const& dbc_Row::Stored(rfm_FieldHandle const& field, Kind kind) const {
  cls_Column const* const column = table_.Find(field);
  bool const fits = column != nullptr && (column->kind == cls_CellKind::Double   ? kind == Kind::number
                                          : column->kind == cls_CellKind::String ? kind == Kind::text
                                                                                 : kind == Kind::word);
  if (!fits) {
    Refuse(field);
  }
  return *column;
}

cls_Column& dbc_Row::Place(rfm_FieldHandle const& field, Kind kind) {
  cls_Column& column = table_.Have(field);
  Stored(field, kind);
  return column;
}

int dbc_Row::GetInt(rfm_FieldHandle const& field) const {
  return static_cast<int>(Stored(field, Kind::word).words[row_]);
}

double dbc_Row::GetDouble(rfm_FieldHandle const& field) const { return Stored(field, Kind::number).doubles[row_]; }

cow_String dbc_Row::GetString(rfm_FieldHandle const& field) const {
  return table_.Database().String(Stored(field, Kind::text).words[row_]);
}

void dbc_Row::SetInt(rfm_FieldHandle const& field, int value) {
  Place(field, Kind::word).Set(row_, static_cast<std::uint32_t>(value));
}

void dbc_Row::SetDouble(rfm_FieldHandle const& field, double value) { Place(field, Kind::number).Set(row_, value); }

void dbc_Row::SetString(rfm_FieldHandle const& field, cow_String const& value) {
  Place(field, Kind::text).Set(row_, table_.Database().StringNumber(value.View()));
}

dbc_ObjectMap::dbc_ObjectMap(dbc_Row const& row, rfm_FieldHandle const& field) : database_(&row.Table().Database()) {
  std::uint32_t const number = row.HasField(field) ? static_cast<std::uint32_t>(row.GetInt(field)) : cls_NoRow;
  if (number == cls_NoRow) {
    return;
  }
  cls_Collection const& stored = database_->collections[number];
  if (stored.kind != cls_CollectionType::ObjectMap && stored.kind != cls_CollectionType::ObjectMapById) {
    cls_RefuseStored(row.Table().Cells().name.View(), row.Number(), "refers to a collection of another kind");
  }
  first_ = stored.first;
  count_ = stored.count;
}

void dbc_ObjectMap::SetTarget(std::uint32_t entry, dbc_Target target) {
  Word(entry, 1) = target.classId;
  Word(entry, 2) = target.row;
}
