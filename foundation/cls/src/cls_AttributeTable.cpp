#include "cls_AttributeTable.h"

#include "cls_Describe.h"

namespace {

int NextIndex() {
  static int next = 0;
  return next++;
}

}  // namespace

cls_Persistent::~cls_Persistent() = default;

void cls_Persistent::DBWrite(cls_WriteVisitor const& writer) const { writer.WriteObject(*this); }

void cls_Persistent::NewUid() {
  uid_.NewUid();
  DynAttributes().NewUid(*this);
}

bool cls_EqualValues(cls_Persistent const& a, cls_Persistent const& b) {
  cls_AttributeTable const& attributes = a.DynAttributes();
  return &a == &b || (&attributes == &b.DynAttributes() && attributes.Equal(a, b));
}

std::string cls_ValuesText(cls_Persistent const& object) {
  std::string text;
  for (cls_Attribute const* attribute : object.DynAttributes().All()) {
    text += text.empty() ? "" : ",";
    text += attribute->declared.field.name.View();
    text += "=" + attribute->Text(object);
  }
  return text;
}

bool cls_SetValuesText(cls_Persistent& object, std::string_view text) {
  while (!text.empty()) {
    std::size_t const equals = text.find('=');
    if (equals == std::string_view::npos) {
      return false;
    }
    // The value ends before the next key, which stands between a comma and an equals sign.
    std::size_t const nextEquals = text.find('=', equals + 1);
    std::size_t const comma = nextEquals == std::string_view::npos ? nextEquals : text.rfind(',', nextEquals);
    bool const last = comma == std::string_view::npos || comma < equals;
    cls_Attribute const* const attribute = object.DynAttributes().Find(text.substr(0, equals));
    std::string_view const value = text.substr(equals + 1, last ? std::string_view::npos : comma - equals - 1);
    if (attribute == nullptr || !attribute->SetText(object, value)) {
      return false;
    }
    text = last ? std::string_view() : text.substr(comma + 1);
  }
  return true;
}

void cls_ReadLevels(cls_Persistent& object, cls_ReadVisitor const& reader) {
  cls_ReadSession& session = reader.Session();
  if (session.depth >= cls_ReadSession::maxDepth) {
    reader.Refuse("objects are nested too deeply");
  }
  cls_Deeper const deeper(session.depth);
  object.DynAttributes().ReadLevel(object, reader);
  object.SetStoredUid(reader.GetUid());
}

cls_Attribute::~cls_Attribute() = default;

cls_AttributeTable::cls_AttributeTable(cow_String name, int version, unsigned int typeId, cls_AttributeTable const* base)
    : name_(std::move(name)),
      version_(version),
      typeId_(typeId),
      base_(base),
      index_(NextIndex()),
      columnCount_(base == nullptr ? 0 : 1) {
  if (base != nullptr) {
    all_ = base->all_;
    identities_ = base->identities_;
  }
}

cls_AttributeTable::cls_AttributeTable(cls_AttributeTable&&) noexcept = default;
cls_AttributeTable::~cls_AttributeTable() = default;

void cls_AttributeTable::Add(std::unique_ptr<cls_Attribute> attribute) {
  attribute->column = columnCount_;
  bool const object = attribute->declared.type == cls_AttributeType::Object ||
                      attribute->declared.type == cls_AttributeType::Reference;
  columnCount_ += object && attribute->declared.collection == cls_CollectionType::Single ? 2 : 1;
  all_.push_back(attribute.get());
  if (attribute->HasIdentity()) {
    identities_.push_back(attribute.get());
  }
  own_.push_back(std::move(attribute));
}

cls_Attribute const* cls_AttributeTable::Find(std::string_view key) const noexcept {
  for (cls_Attribute const* attribute : all_) {
    if (attribute->declared.field.name.View() == key) {
      return attribute;
    }
  }
  return nullptr;
}

bool cls_AttributeTable::Equal(cls_Persistent const& a, cls_Persistent const& b) const {
  for (cls_Attribute const* attribute : all_) {
    if (!attribute->Equal(a, b)) {
      return false;
    }
  }
  return true;
}

void cls_AttributeTable::NewUid(cls_Persistent& object) const {
  for (cls_Attribute const* attribute : identities_) {
    attribute->NewUid(object);
  }
}

void cls_AttributeTable::Unshare(cls_Persistent& object, cls_DeepCopyContext& context) const {
  for (cls_Attribute const* attribute : all_) {
    attribute->Unshare(object, context);
  }
}

void cls_AttributeTable::WriteLevel(cls_Persistent const& object, cls_WriteVisitor const& writer) const {
  if (base_ != nullptr) {
    cls_Table& table = writer.Session().TableOf(*base_);
    std::uint32_t const row = table.NewRow(0);
    writer.SetWord(0, row);
    base_->WriteLevel(object, cls_WriteVisitor(writer.Session(), table, row));
  }
  for (auto const& attribute : own_) {
    attribute->Write(object, writer);
  }
}

void cls_AttributeTable::ReadLevel(cls_Persistent& object, cls_ReadVisitor reader) const {
  if (reader.StoredTypeId() != typeId_) {
    reader.Refuse("the row is not one of the class that refers to it");
  }
  reader.SetClass(*this);
  // A base without attributes may have no row: it would tell nothing.
  if (base_ != nullptr && (reader.HasBasePart() || !base_->All().empty())) {
    base_->ReadLevel(object, reader.BasePart());
  }
  for (auto const& attribute : own_) {
    attribute->Read(object, reader);
  }
}

cls_Table& cls_AttributeTable::AddTo(cls_Database& database) const {
  cls_Table& table = database.AddTable(typeId_, name_, version_, base_ == nullptr ? 0 : base_->TypeId());
  for (auto const& attribute : own_) {
    table.AddColumns(attribute->declared);
  }
  return table;
}

cls_Persistent* cls_DeepCopy(cls_Persistent const& object, cls_DeepCopyContext& context) {
  std::unique_ptr<cls_Persistent> copy(object.Copy());
  copy->DynAttributes().Unshare(*copy, context);
  return copy.release();
}
