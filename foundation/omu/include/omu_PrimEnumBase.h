#pragma once

#include "TVOExport.h"
#include "cow_Map.h"
#include "cow_String.h"

/// One row of an enumeration's table: the name that is stored and typed, and the value.
struct omu_EnumRow {
  char const* name;
  int value;
};

/// The rows of an enumeration, ended by a null name. Given beside each enumeration:
///
///     template <>
///     inline constexpr omu_EnumRow omu_EnumRows<kbcC_BC::CategoryEnm>[] = {{"MECHANICAL", 0}, ..., {nullptr, 0}};
template <class E>
inline constexpr omu_EnumRow omu_EnumRows[] = {{nullptr, 0}};

/// What all typed enumerations share: the current name and value, and the search in a table of rows.
class TVO_API omu_PrimEnumBase {
 public:
  omu_PrimEnumBase() = default;
  virtual ~omu_PrimEnumBase();

  /// The current name, empty before a value was set.
  cow_String const& AsString() const noexcept { return name_; }
  int IntValue() const noexcept { return value_; }
  bool operator==(omu_PrimEnumBase const& other) const noexcept { return value_ == other.value_; }

  /// The row of exactly that name (case counts) or of that value, or null.
  static omu_EnumRow const* FindRow(omu_EnumRow const* rows, std::string_view name) noexcept;
  static omu_EnumRow const* FindRow(omu_EnumRow const* rows, int value) noexcept;
  /// The names of all rows with ", " between them.
  static cow_String PermissibleValuesAsString(omu_EnumRow const* rows);
  static cow_Map<cow_String, int> PermissibleValues(omu_EnumRow const* rows);

  /// The refusals: nex_CmdException<cow_String, 1> with the fixed words.
  [[noreturn]] static void RefuseValue(omu_EnumRow const* rows, int value);
  [[noreturn]] static void RefuseOther(std::string_view name);
  [[noreturn]] static void RefuseName(omu_EnumRow const* rows, std::string_view name);
  [[noreturn]] static void RefuseStored(omu_EnumRow const* rows, std::string_view name);

 protected:
  omu_PrimEnumBase(omu_PrimEnumBase const&) = default;
  omu_PrimEnumBase& operator=(omu_PrimEnumBase const&) = default;
  bool Set(omu_EnumRow const* row);

 private:
  cow_String name_;
  int value_ = 0;
};
