#pragma once

#include "TVOExport.h"

/// One row of a module's type table.
struct typ_Entry {
  char const* name;
  int kind;
  unsigned int parent;  ///< type identifier of the parent class, 0 for none
};

/// A module's rows; the table is not owned and must outlive the entry in typ_ArchCompTable.
class typ_ArchCompEntry {
 public:
  typ_ArchCompEntry(typ_Entry const* table, int count) noexcept : table_(table), count_(count) {}

  int Count() const noexcept { return count_; }
  /// The row `row`, from 1; null beyond the table.
  typ_Entry const* Row(unsigned int row) const noexcept {
    return row >= 1 && row <= static_cast<unsigned int>(count_) ? table_ + (row - 1) : nullptr;
  }
  friend bool operator==(typ_ArchCompEntry const&, typ_ArchCompEntry const&) = default;

 private:
  typ_Entry const* table_;
  int count_;
};

/// The process-wide type table: row N of a module has the identifier (moduleId << 16) | N, the first row being 1.
/// Identifiers are stored in databases and are never reassigned.
class TVO_API typ_ArchCompTable {
 public:
  /// Enters a module. The same table again has no effect; another table for the same module raises
  /// nex_PrimException<cow_String, 3>, which names both.
  static void InsertEntry(unsigned short moduleId, typ_ArchCompEntry entry);
  /// Takes a module out; an unknown one has no effect.
  static void RemoveEntry(unsigned short moduleId);

  /// The class's name, "" for an unknown identifier. Constant time.
  static char const* GetName(unsigned int typeId) noexcept;
  /// The identifier of the parent class, 0 for none and for an unknown identifier. Constant time.
  static unsigned int GetParent(unsigned int typeId) noexcept;
  /// Whether `child` is `parent` or derives from it. Linear in the distance.
  static bool IsParent(unsigned int parent, unsigned int child) noexcept;
  /// The identifier of the class of this name, 0 if there is none; of equal names the lowest identifier. Constant time.
  static unsigned int FindId(char const* name);
};
