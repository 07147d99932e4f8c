#pragma once

#include <span>
#include <vector>

#include "typ_ArchCompTable.h"
#include "typ_Row.h"

/// The type table of one module, made from its list of types; it must live while the module is entered, as a static does.
class TVO_API typ_Module {
 public:
  /// A parent is looked for in the list itself, then among the types already entered; one that is in neither raises
  /// nex_PrimException<cow_String, 3>, which names the row and the parent. The names are not copied.
  typ_Module(unsigned short moduleId, std::span<typ_Row const> rows);
  typ_Module(typ_Module const&) = delete;
  typ_Module& operator=(typ_Module const&) = delete;

  unsigned short ModuleId() const noexcept { return moduleId_; }
  typ_ArchCompEntry ArchEntry() const noexcept { return {table_.data(), static_cast<int>(table_.size())}; }
  void Insert() const { typ_ArchCompTable::InsertEntry(moduleId_, ArchEntry()); }
  void Remove() const { typ_ArchCompTable::RemoveEntry(moduleId_); }

 private:
  unsigned short moduleId_;
  std::vector<typ_Entry> table_;
};
