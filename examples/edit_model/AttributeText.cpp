#include "AttributeText.h"

#include "mdl_PropagatingAttribute.h"

namespace {

using State = omu_PrimEnum<mdl_PropAttributeStateEnm, 1>;

/// What a class calls the list of an object's states.
constexpr char const* listOfStates = "states";

bool IsState(std::string const& value) { return value == "SET" || value == "FREED" || value == "UNSET"; }

void SetIn(cls_Persistent& object, cls_Attribute const& attribute, Setting const& setting, bool createStep) {
  auto* const propagating = dynamic_cast<mdl_PropAttrBase*>(attribute.Embedded(object));
  if (propagating != nullptr && IsState(setting.value)) {
    propagating->SetStatus(setting.key.c_str(), State(cow_String(setting.value)), createStep);
    return;
  }
  bool const read =
      propagating != nullptr ? propagating->SetValueText(setting.value) : attribute.SetText(object, setting.value);
  if (!read) {
    char const* const expected = propagating != nullptr ? propagating->Expected() : attribute.Expected();
    throw Unreadable(expected + (" for " + setting.key));
  }
  attribute.AssertPartsValid(object);
}

}  // namespace

std::vector<AttributeRow> AttributeRows(cls_Persistent const& object) {
  std::vector<AttributeRow> rows;
  for (cls_Attribute const* attribute : object.DynAttributes().All()) {
    cow_String const& key = attribute->declared.field.name;
    if (key == listOfStates) continue;
    auto const* const propagating = dynamic_cast<mdl_PropAttrBase const*>(attribute->Embedded(object));
    if (propagating == nullptr) {
      rows.push_back({key.CStr(), attribute->Text(object), ""});
    } else {
      rows.push_back({key.CStr(), propagating->ValueText(), State(propagating->State()).AsString().CStr()});
    }
  }
  return rows;
}

void SetAttribute(std::initializer_list<cls_Persistent*> objects, Setting const& setting, bool createStep) {
  std::string keys;
  for (cls_Persistent* object : objects) {
    cls_AttributeTable const& table = object->DynAttributes();
    if (cls_Attribute const* const attribute = table.Find(setting.key)) {
      return SetIn(*object, *attribute, setting, createStep);
    }
    for (cls_Attribute const* attribute : table.All()) {
      keys.append(keys.empty() ? "" : ", ").append(attribute->declared.field.name.View());
    }
  }
  throw Unreadable("one of the keys " + keys + ", not " + setting.key);
}

cls_ClassMetadata const& FindType(std::string const& name, std::function<bool(cls_AttributeTable const&)> const& fits,
                                  char const* expected) {
  std::string names;
  for (auto const& [id, type] : cls_ClassRegistrar::Present().All()) {
    cls_AttributeTable const* const table = type->Attributes();
    if (table == nullptr || table->ScriptingName().IsEmpty() || !fits(*table)) continue;
    if (table->ScriptingName() == name.c_str()) return *type;
    names.append(names.empty() ? "" : ", ").append(table->ScriptingName().View());
  }
  throw Unreadable(expected + (" (" + names) + "), not " + name);
}

std::unique_ptr<cls_Persistent> NewObject(cls_ClassMetadata const& type) {
  std::unique_ptr<cls_Persistent> object(type.New());
  if (object == nullptr) throw Unreadable("a class that is not abstract, not " + std::string(type.Name().View()));
  return object;
}

std::unique_ptr<cls_Persistent> NewObject(cls_AttributeTable const& table) {
  return NewObject(cls_ClassRegistrar::Present().Get(table.TypeId()));
}
