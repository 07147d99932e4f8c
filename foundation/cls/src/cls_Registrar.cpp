#include "cls_Registrar.h"

#include <algorithm>
#include <string>

#include "cls_Codec.h"
#include "nex_Exception.h"
#include "typ_ArchCompTable.h"

cls_ClassMetadata::cls_ClassMetadata(cow_String name, unsigned int typeId, int version, void* (*ctor)(cls_ReadVisitor&),
                                     unsigned int, unsigned int parentTypeId)
    : name_(std::move(name)), typeId_(typeId), version_(version), ctor_(ctor), parentTypeId_(parentTypeId) {}

cls_ClassMetadata::~cls_ClassMetadata() = default;

cls_ClassMetadata& cls_ClassMetadata::AddAttribute(cls_FieldHandle const& field, cls_AttributeType type,
                                                   unsigned int typeId, cls_CollectionType collection) {
  declared_.push_back({field, type, typeId, collection});
  return *this;
}

cls_ClassMetadata& cls_ClassMetadata::AddAttributes(cls_AttributeTable const& table) {
  for (auto const& attribute : table.Own()) {
    declared_.push_back(attribute->declared);
  }
  return *this;
}

cls_ClassMetadata& cls_ClassMetadata::AddDtor(void (*dtor)(cls_UntypedHolder*)) {
  dtor_ = dtor;
  return *this;
}

void cls_ClassMetadata::DBWrite(void const* object, cls_WriteVisitor const& writer) const {
  static_cast<cls_Persistent const*>(object)->DBWrite(writer);
}

void cls_ClassMetadata::Delete(void* object) const { delete static_cast<cls_Persistent*>(object); }

void cls_ClassMetadata::DeleteCow(cls_UntypedHolder* holder) const {
  if (dtor_ != nullptr) {
    dtor_(holder);
  }
}

cls_Persistent* cls_ClassMetadata::Ctor(cls_ReadVisitor const& reader) const {
  cls_ReadVisitor copy = reader;
  return ctor_ == nullptr ? nullptr : static_cast<cls_Persistent*>(ctor_(copy));
}

cls_ClassRegistrar::cls_ClassRegistrar() = default;
cls_ClassRegistrar::~cls_ClassRegistrar() = default;

cls_ClassRegistrar& cls_ClassRegistrar::Present() {
  static cls_ClassRegistrar present;
  return present;
}

cls_ClassMetadata& cls_ClassRegistrar::CreateClassMD(cow_String const& name, unsigned int typeId, int version,
                                                     void* (*ctor)(cls_ReadVisitor&), unsigned int base) {
  return AddClassMD(new cls_ClassMetadata(name, typeId, version, ctor, 1, base == 1 ? 0 : base));
}

cls_ClassMetadata& cls_ClassRegistrar::AddClassMD(cls_ClassMetadata* metadata) {
  std::unique_ptr<cls_ClassMetadata> owned(metadata);
  auto& place = classes_[metadata->TypeId()];
  if (place != nullptr) {
    std::string const text = "Type identifier " + std::to_string(metadata->TypeId()) + " of " + metadata->Name().CStr() +
                             " belongs to " + place->Name().CStr() + ".";
    nex_PrimException<cow_String, 3>(cow_String(text)).Throw(__FILE__, __LINE__);
  }
  place = std::move(owned);
  return *place;
}

void cls_ClassRegistrar::DeleteClass(cow_String const& name, unsigned int typeId) {
  auto const found = classes_.find(typeId);
  if (found != classes_.end() && found->second->Name() == name) {
    classes_.erase(found);
  }
}

void cls_ClassRegistrar::Clear() { classes_.clear(); }

cls_ClassMetadata const* cls_ClassRegistrar::Find(unsigned int typeId) const {
  auto const found = classes_.find(typeId);
  return found == classes_.end() ? nullptr : found->second.get();
}

cls_ClassMetadata const* cls_ClassRegistrar::FindByName(std::string_view name) const {
  auto const found = std::find_if(classes_.begin(), classes_.end(),
                                  [&](auto const& entry) { return entry.second->Name().View() == name; });
  return found == classes_.end() ? nullptr : found->second.get();
}

cls_ClassMetadata const* cls_ClassRegistrar::FindByScriptingName(std::string_view name) const {
  auto const found = std::find_if(classes_.begin(), classes_.end(), [&](auto const& entry) {
    cls_AttributeTable const* const attributes = entry.second->Attributes();
    return attributes != nullptr && attributes->ScriptingName().View() == name;
  });
  return name.empty() || found == classes_.end() ? nullptr : found->second.get();
}

cls_ClassMetadata const& cls_ClassRegistrar::Get(unsigned int typeId) const {
  cls_ClassMetadata const* const found = Find(typeId);
  if (found == nullptr) {
    nex_PrimException<cow_String, 3>(cow_String("Unknown class " + std::to_string(typeId) + ".")).Throw(__FILE__, __LINE__);
  }
  return *found;
}

bool cls_ClassRegistrar::InheritanceCheck(unsigned int derived, unsigned int base) {
  return typ_ArchCompTable::IsParent(base, derived);
}

void cls_MetadataRegistrar::initClassMetadata(void (*registration)(cls_ClassRegistrar&), int phase) {
  pending_.push_back({registration, phase});
}

void cls_MetadataRegistrar::RunPhases() {
  std::vector<Pending> run;
  run.swap(pending_);
  std::stable_sort(run.begin(), run.end(), [](Pending const& a, Pending const& b) { return a.phase < b.phase; });
  for (Pending const& entry : run) {
    entry.registration(cls_ClassRegistrar::Present());
  }
}

cls_Persistent* cls_ConstructStored(cls_ReadVisitor& reader) {
  cls_Persistent* const object = cls_ClassRegistrar::Present().Get(reader.StoredTypeId()).Ctor(reader);
  if (object == nullptr) {
    reader.Refuse("an abstract class has no objects");
  }
  return object;
}

void* DDB_DeepCopyPtr(void const* object, unsigned int typeId) {
  cls_ClassRegistrar::Present().Get(typeId);
  cls_DeepCopyContext context;
  return cls_DeepCopy(*static_cast<cls_Persistent const*>(object), context);
}
