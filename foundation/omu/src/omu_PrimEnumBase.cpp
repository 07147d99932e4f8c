#include "omu_PrimEnumBase.h"

#include <string>

#include "nex_Exception.h"

namespace {

[[noreturn]] void Refuse(std::string const& text) {
  nex_CmdException<cow_String, 1>(cow_String(text)).Throw(__FILE__, __LINE__);
}

std::string WithPermissible(std::string text, omu_EnumRow const* rows) {
  text += "  Permissible: ";
  text += omu_PrimEnumBase::PermissibleValuesAsString(rows).View();
  return text;
}

}  // namespace

omu_PrimEnumBase::~omu_PrimEnumBase() = default;

omu_EnumRow const* omu_PrimEnumBase::FindRow(omu_EnumRow const* rows, std::string_view name) noexcept {
  for (; rows->name != nullptr; ++rows) {
    if (name == rows->name) {
      return rows;
    }
  }
  return nullptr;
}

omu_EnumRow const* omu_PrimEnumBase::FindRow(omu_EnumRow const* rows, int value) noexcept {
  for (; rows->name != nullptr; ++rows) {
    if (value == rows->value) {
      return rows;
    }
  }
  return nullptr;
}

cow_String omu_PrimEnumBase::PermissibleValuesAsString(omu_EnumRow const* rows) {
  std::string text;
  for (; rows->name != nullptr; ++rows) {
    text += text.empty() ? "" : ", ";
    text += rows->name;
  }
  return cow_String(text);
}

cow_Map<cow_String, int> omu_PrimEnumBase::PermissibleValues(omu_EnumRow const* rows) {
  cow_Map<cow_String, int> values;
  for (; rows->name != nullptr; ++rows) {
    values.Insert(cow_String(rows->name), rows->value);
  }
  return values;
}

void omu_PrimEnumBase::RefuseValue(omu_EnumRow const* rows, int value) {
  Refuse(WithPermissible("omu_PrimEnum(ENUMTYPE) - Enum value not allowed: " + std::to_string(value), rows));
}
void omu_PrimEnumBase::RefuseOther(std::string_view name) {
  Refuse("omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: " + std::string(name));
}
void omu_PrimEnumBase::RefuseName(omu_EnumRow const* rows, std::string_view name) {
  Refuse(WithPermissible("omu_PrimEnum(const cow_String&) - str not allowed: " + std::string(name), rows));
}
void omu_PrimEnumBase::RefuseStored(omu_EnumRow const* rows, std::string_view name) {
  Refuse(WithPermissible("omu_PrimEnum(const cls_ReadVisitor&) - str not allowed: " + std::string(name), rows));
}

bool omu_PrimEnumBase::Set(omu_EnumRow const* row) {
  if (row == nullptr) {
    return false;
  }
  name_ = cow_String(row->name);
  value_ = row->value;
  return true;
}
