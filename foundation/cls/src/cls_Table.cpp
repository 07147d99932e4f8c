#include "cls_Table.h"

#include <string>

namespace {

cow_String Suffixed(cow_String const& name, char const* suffix) { return cow_String(std::string(name.View()) + suffix); }

}  // namespace

int cls_Table::AddColumns(cls_DeclaredAttribute const& attribute) {
  auto const first = static_cast<int>(columns.size());
  cow_String const& key = attribute.field.name;
  declared.push_back(attribute);
  if (attribute.collection != cls_CollectionType::Single) {
    columns.emplace_back(Suffixed(key, cls_OidSuffix), cls_CellKind::Collection);
    return first;
  }
  switch (attribute.type) {
    case cls_AttributeType::Double:
      columns.emplace_back(key, cls_CellKind::Double);
      break;
    case cls_AttributeType::String:
    case cls_AttributeType::Enum:
      columns.emplace_back(key, cls_CellKind::String);
      break;
    case cls_AttributeType::Object:
    case cls_AttributeType::Reference:
      columns.emplace_back(Suffixed(key, cls_ClassIdSuffix), cls_CellKind::ClassId, attribute.typeId);
      columns.emplace_back(Suffixed(key, cls_OidSuffix), cls_CellKind::RowOfClass);
      break;
    default:
      columns.emplace_back(key, cls_CellKind::Int);
  }
  return first;
}

int cls_Table::FindColumn(std::string_view fieldName) const noexcept {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].name.View() == fieldName) {
      return static_cast<int>(i);
    }
  }
  return -1;
}

void cls_Table::Complete() {
  for (cls_Column& column : columns) {
    column.Fill(Rows());
  }
}

cls_Table* cls_Database::FindTable(unsigned int typeId) noexcept {
  auto const found = byId_.find(typeId);
  return found == byId_.end() ? nullptr : found->second;
}

cls_Table const* cls_Database::FindTable(unsigned int typeId) const noexcept {
  auto const found = byId_.find(typeId);
  return found == byId_.end() ? nullptr : found->second;
}

cls_Table& cls_Database::AddTable(unsigned int typeId, cow_String const& name, int version, unsigned int parentTypeId) {
  tables.push_back(std::make_unique<cls_Table>(typeId, name, version, parentTypeId));
  cls_Table& table = *tables.back();
  table.index = tables.size() - 1;
  if (parentTypeId != 0) {
    table.columns.emplace_back(cow_String(cls_BaseClassField), cls_CellKind::Row, parentTypeId);
  }
  byId_[typeId] = &table;
  return table;
}

std::unique_ptr<cls_Table> cls_Database::Replace(std::unique_ptr<cls_Table> table) {
  cls_Table*& known = byId_.at(table->typeId);
  table->index = known->index;
  known = table.get();
  tables[table->index].swap(table);
  return table;
}

std::unique_ptr<cls_Table> cls_Database::Remove(unsigned int typeId) {
  auto const found = byId_.find(typeId);
  if (found == byId_.end()) {
    return nullptr;
  }
  std::size_t const index = found->second->index;
  std::unique_ptr<cls_Table> table = std::move(tables[index]);
  tables.erase(tables.begin() + static_cast<std::ptrdiff_t>(index));
  byId_.erase(found);
  for (std::size_t i = index; i < tables.size(); ++i) {
    tables[i]->index = i;
  }
  return table;
}

std::uint32_t cls_Database::StringNumber(std::string_view text) {
  if (text.empty()) {
    return 0;
  }
  auto const found = numbers_.find(text);
  if (found != numbers_.end()) {
    return found->second;
  }
  auto const number = static_cast<std::uint32_t>(strings.size());
  strings.emplace_back(text);
  // The characters of a shared string stay where they are when the vector grows.
  numbers_.emplace(strings.back().View(), number);
  return number;
}

void cls_Database::Complete() {
  for (auto& table : tables) {
    table->Complete();
  }
}
