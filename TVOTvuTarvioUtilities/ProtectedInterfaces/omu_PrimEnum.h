#pragma once

#include "cls_Visitors.h"
#include "omu_EnumCodec.h"
#include "omu_PrimEnumBase.h"

/// A value of enumeration E tied to the table of its names, by which it is stored and typed.
///
/// The constructors refuse what the table lacks (nex_CmdException<cow_String, 1>); SetValue answers false and leaves the
/// object as it was.
template <class E, int n = 1>
class omu_PrimEnum : public omu_PrimEnumBase {
 public:
  /// No row yet.
  omu_PrimEnum() = default;
  omu_PrimEnum(E value) {
    if (!SetValue(value)) {
      RefuseValue(Rows(), static_cast<int>(value));
    }
  }
  explicit omu_PrimEnum(cow_String const& name) {
    if (!SetValue(name.CStr())) {
      RefuseName(Rows(), name.View());
    }
  }
  explicit omu_PrimEnum(omu_PrimEnumBase const& other) {
    if (!SetValue(other.AsString().CStr())) {
      RefuseOther(other.AsString().View());
    }
  }
  /// Reads the name that stands under the key `val` of the visitor's row.
  explicit omu_PrimEnum(cls_ReadVisitor const& reader) {
    cow_String name;
    reader.Get(cls_FieldHandle{0, "val"}, name);
    if (!SetValue(name.CStr())) {
      RefuseStored(Rows(), name.View());
    }
  }

  bool SetValue(char const* name) { return Set(FindRow(Rows(), std::string_view(name))); }
  bool SetValue(E value) { return Set(FindRow(Rows(), static_cast<int>(value))); }
  E GetValue() const noexcept { return static_cast<E>(IntValue()); }
  operator E() const noexcept { return GetValue(); }
  bool operator==(omu_PrimEnum const& other) const noexcept { return IntValue() == other.IntValue(); }
  bool operator==(E value) const noexcept { return GetValue() == value; }

  /// The row at an index from 0, without a check.
  static char const* Name(int index) noexcept { return Rows()[index].name; }
  static int Value(int index) noexcept { return Rows()[index].value; }
  cow_Map<cow_String, int> PermissibleValues() const { return omu_PrimEnumBase::PermissibleValues(Rows()); }
  omu_PrimEnum* Copy() const { return new omu_PrimEnum(*this); }

 private:
  static constexpr omu_EnumRow const* Rows() noexcept { return omu_EnumRows<E>; }
};
