#include "dbc_Utils.h"

#include <bit>
#include <string>

#include "cls_Visitors.h"

namespace {

/// A field of an attribute, by its suffix.
class Field {
 public:
  Field(cow_String const& key, char const* suffix) : name_(std::string(key.View()) + suffix), handle_(name_.c_str()) {}
  operator rfm_FieldHandle const&() const noexcept { return handle_; }

 private:
  std::string name_;
  rfm_FieldHandle handle_;
};

void SetNew(dbc_Row& row, cow_String const& key, cls_CollectionType kind, std::size_t count = 0) {
  cls_Database& database = row.Table().Database();
  bool const ofDoubles = kind == cls_CollectionType::DoubleList;
  std::size_t const first = ofDoubles ? database.doubles.size() : database.words.size();
  row.SetInt(Field(key, cls_OidSuffix), static_cast<int>(database.collections.size()));
  database.collections.push_back(
      {cls_Uid::AllocateUid(), kind, static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(count)});
}

}  // namespace

void dbc_Utils::SetNewAttributeArrayIntInOutputDatabase(dbc_Row& row, cow_String const& key) const {
  SetNew(row, key, cls_CollectionType::IntList);
}
void dbc_Utils::SetNewAttributeArrayDoubleInOutputDatabase(dbc_Row& row, cow_String const& key) const {
  SetNew(row, key, cls_CollectionType::DoubleList);
}
void dbc_Utils::SetNewAttributeArrayStringInOutputDatabase(dbc_Row& row, cow_String const& key) const {
  SetNew(row, key, cls_CollectionType::StringList);
}
void dbc_Utils::SetNewAttributeListInOutputDatabase(dbc_Row& row, cow_String const& key) const {
  SetNew(row, key, cls_CollectionType::ObjectList);
}
void dbc_Utils::SetNewAttributeMapInOutputDatabase(dbc_Row& row, cow_String const& key) const {
  SetNew(row, key, cls_CollectionType::ObjectMap);
}
void dbc_Utils::SetNewAttributeMapListInOutputDatabase(dbc_Row& row, cow_String const& key) const {
  SetNew(row, key, cls_CollectionType::NameToId);
}
void dbc_Utils::SetNewAttributeMapInt2ObjInOutputDatabase(dbc_Row& row, cow_String const& key) const {
  SetNew(row, key, cls_CollectionType::ObjectMapById);
}

std::vector<float> dbc_Utils::GetAttributeArrayFloatFromInputDatabase(dbc_Row const& row, cow_String const& key) const {
  Field const field(key, cls_OidSuffix);
  auto const number = row.HasField(field) ? static_cast<std::uint32_t>(row.GetInt(field)) : cls_NoRow;
  std::vector<float> values;
  if (number == cls_NoRow) {
    return values;
  }
  cls_Database const& database = row.Table().Database();
  cls_Collection const& stored = database.collections[number];
  if (stored.kind != cls_CollectionType::FloatList) {
    cls_RefuseStored(row.Table().Cells().name.View(), row.Number(), "refers to a collection of another kind");
  }
  for (std::uint32_t i = 0; i < stored.count; ++i) {
    values.push_back(std::bit_cast<float>(database.words[stored.first + i]));
  }
  return values;
}

void dbc_Utils::UpdateAttributeArrayDoubleInOutputDatabase(dbc_Row& row, cow_String const& key,
                                                           std::vector<double> const& values) const {
  SetNew(row, key, cls_CollectionType::DoubleList, values.size());
  auto& heap = row.Table().Database().doubles;
  heap.insert(heap.end(), values.begin(), values.end());
}

dbc_Target dbc_Utils::GetObj(dbc_Row const& row, cow_String const& key) const {
  Field const classId(key, cls_ClassIdSuffix);
  Field const oid(key, cls_OidSuffix);
  if (!row.HasField(classId) || !row.HasField(oid)) {
    return {};
  }
  return {static_cast<unsigned int>(row.GetInt(classId)), static_cast<std::uint32_t>(row.GetInt(oid))};
}

void dbc_Utils::SetObj(dbc_Row& row, cow_String const& key, dbc_Target object) const {
  row.SetInt(Field(key, cls_ClassIdSuffix), static_cast<int>(object.classId));
  row.SetInt(Field(key, cls_OidSuffix), static_cast<int>(object.row));
}
