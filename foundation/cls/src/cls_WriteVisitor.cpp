#include "cls_AttributeTable.h"
#include "cls_Registrar.h"
#include "cls_Visitors.h"

namespace {

constexpr std::size_t textCacheSize = 4096;

}  // namespace

int cls_NextCacheIndex() {
  static int next = 0;
  return next++;
}

cls_WriteSession::cls_WriteSession(cls_Database& database) : database_(database), texts_(textCacheSize), written_(1024) {}
cls_WriteSession::~cls_WriteSession() = default;

cls_Table& cls_WriteSession::TableOf(cls_AttributeTable const& attributes) {
  cls_Table*& table = cls_At(tableByIndex_, attributes.Index());
  if (table == nullptr) {
    table = database_.FindTable(attributes.TypeId());
    if (table == nullptr) {
      table = &attributes.AddTo(database_);
    }
  }
  return *table;
}

cls_Table& cls_WriteSession::TableOf(unsigned int typeId) {
  cls_ClassMetadata const& metadata = cls_ClassRegistrar::Present().Get(typeId);
  if (metadata.Attributes() == nullptr) {
    cls_RefuseStored(metadata.Name().View(), cls_NoRow, "the class has no present form");
  }
  return TableOf(*metadata.Attributes());
}

std::uint32_t cls_WriteSession::StringNumber(cow_String const& text) {
  if (text.IsEmpty()) {
    return 0;
  }
  char const* const place = text.CStr();
  CachedText& cached = texts_[(reinterpret_cast<std::uintptr_t>(place) >> 4) % textCacheSize];
  if (cached.place != place) {
    cached = {place, database_.StringNumber(text.View())};
  }
  return cached.number;
}

// Identities that were given out one after the other stand side by side, eight in a row; the rows are scattered.
std::size_t cls_WriteSession::Slot(std::uint64_t uid) const noexcept {
  std::uint64_t const row = (uid >> 3) * 0x9e3779b97f4a7c15u;
  return static_cast<std::size_t>(((row >> 29) << 3 | (uid & 7u)) & (written_.size() - 1));
}

std::uint32_t cls_WriteSession::FindWritten(std::uint64_t uid, void const* place) const {
  for (std::size_t slot = Slot(uid);; slot = (slot + 1) & (written_.size() - 1)) {
    Written const& entry = written_[slot];
    if (entry.row == cls_NoRow) {
      return cls_NoRow;
    }
    if (entry.uid == uid && (entry.place == place || entry.place == nullptr || place == nullptr)) {
      return entry.row;
    }
  }
}

void cls_WriteSession::NoteWritten(std::uint64_t uid, void const* place, std::uint32_t row) {
  if (2 * ++writtenCount_ > written_.size()) {
    Grow();
  }
  std::size_t slot = Slot(uid);
  while (written_[slot].row != cls_NoRow) {
    slot = (slot + 1) & (written_.size() - 1);
  }
  written_[slot] = {uid, place, row};
}

void cls_WriteSession::Grow() {
  std::vector<Written> old(written_.size() * 4);
  old.swap(written_);
  for (Written const& entry : old) {
    if (entry.row != cls_NoRow) {
      std::size_t slot = Slot(entry.uid);
      while (written_[slot].row != cls_NoRow) {
        slot = (slot + 1) & (written_.size() - 1);
      }
      written_[slot] = entry;
    }
  }
}

cls_WriteVisitor::cls_WriteVisitor(cls_WriteVisitor const& outer, unsigned int)
    : session_(outer.session_), outer_(&outer), column_(0), role_(Role::base), shareable_(false) {}

cls_WriteVisitor::cls_WriteVisitor(cls_WriteVisitor const& outer, cls_FieldHandle const& key)
    : session_(outer.session_),
      outer_(&outer),
      column_(outer.table_->FindColumn(std::string(key.name.View()) + cls_ClassIdSuffix)),
      role_(Role::embedded) {
  if (column_ < 0) {
    cls_RefuseStored(outer.table_->name.View(), outer.row_, std::string("no object attribute ") + key.name.CStr());
  }
}

unsigned int cls_WriteVisitor::StartWrite(unsigned int typeId, cls_Uid const& uid) const {
  bool const base = role_ == Role::base;
  std::uint32_t const before = base ? cls_NoRow : session_->FindWritten(uid.Value(), nullptr);
  if (before != cls_NoRow) {
    row_ = before;
    Link(typeId, before);
    return 0;
  }
  table_ = &session_->TableOf(typeId);
  row_ = table_->NewRow(base ? 0 : uid.Value());
  if (!base) {
    session_->NoteWritten(uid.Value(), nullptr, row_);
  }
  Link(typeId, row_);
  return row_ + 1;
}

void cls_WriteVisitor::Link(unsigned int typeId, std::uint32_t row) const {
  switch (role_) {
    case Role::root: {
      cls_Database& database = session_->Database();
      if (database.rootRow == cls_NoRow) {
        database.rootTypeId = typeId;
        database.rootRow = row;
      }
      break;
    }
    case Role::base:
      outer_->SetWord(0, row);
      break;
    case Role::embedded:
      outer_->SetWord(column_, typeId);
      outer_->SetWord(column_ + 1, row);
      break;
    case Role::element:
      break;
  }
}

cls_Column& cls_WriteVisitor::Column(cls_FieldHandle const& key, cls_CellKind kind) const {
  int const found = table_->FindColumn(key.name.View());
  if (found < 0 || Column(found).kind != kind) {
    cls_RefuseStored(table_->name.View(), row_, std::string("no attribute of that kind: ") + key.name.CStr());
  }
  return Column(found);
}

void cls_WriteVisitor::Put(cls_FieldHandle const& key, bool value) const {
  Column(key, cls_CellKind::Int).Set(row_, std::uint32_t{value});
}
void cls_WriteVisitor::Put(cls_FieldHandle const& key, int value) const {
  Column(key, cls_CellKind::Int).Set(row_, static_cast<std::uint32_t>(value));
}
void cls_WriteVisitor::Put(cls_FieldHandle const& key, double value) const {
  Column(key, cls_CellKind::Double).Set(row_, value);
}
void cls_WriteVisitor::Put(cls_FieldHandle const& key, cow_String const& value) const {
  // Not by the session's cache: the text may be gone when another one stands at its place.
  Column(key, cls_CellKind::String).Set(row_, session_->Database().StringNumber(value.View()));
}

void cls_WriteVisitor::WriteObject(cls_Persistent const& object) const {
  cls_AttributeTable const& attributes = object.DynAttributes();
  std::uint64_t const uid = object.Uid().Value();
  if (shareable_) {
    std::uint32_t const before = session_->FindWritten(uid, &object);
    if (before != cls_NoRow) {
      row_ = before;
      Link(attributes.TypeId(), before);
      return;
    }
  }
  table_ = &session_->TableOf(attributes);
  row_ = table_->NewRow(uid);
  if (shareable_) {
    session_->NoteWritten(uid, &object, row_);
  }
  Link(attributes.TypeId(), row_);
  WriteLevels(object, attributes);
}

void cls_WriteVisitor::WriteLevels(cls_Persistent const& object, cls_AttributeTable const& attributes) const {
  if (session_->depth >= cls_ReadSession::maxDepth) {
    cls_RefuseStored(attributes.Name().View(), row_, "objects are nested too deeply");
  }
  cls_Deeper const deeper(session_->depth);
  attributes.WriteLevel(object, *this);
}

void cls_WriteVisitor::SetPart(int column, cls_Persistent const& object, cls_AttributeTable const& attributes) const {
  cls_Table& table = session_->TableOf(attributes);
  std::uint32_t const row = table.NewRow(object.Uid().Value());
  SetWord(column, attributes.TypeId());
  SetWord(column + 1, row);
  cls_WriteVisitor(*session_, table, row).WriteLevels(object, attributes);
}

void cls_WriteVisitor::SetObject(int column, cls_Persistent const& object, bool shareable) const {
  cls_WriteVisitor inner(*this, column);
  inner.shareable_ = shareable;
  object.DBWrite(inner);
}

std::uint32_t cls_WriteVisitor::WriteElement(cls_Persistent const& object, bool shareable) const {
  cls_WriteVisitor element(*session_);
  element.role_ = Role::element;
  element.shareable_ = shareable;
  object.DBWrite(element);
  return element.row_;
}
