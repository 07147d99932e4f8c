#include "typ_ArchCompTable.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "nex_Exception.h"

namespace {

/// Entries by module number, which is small, and all names.
struct Types {
  std::vector<typ_ArchCompEntry> modules;
  std::unordered_map<std::string_view, unsigned int> idByName;

  bool IsEntered(unsigned int moduleId) const { return moduleId < modules.size() && modules[moduleId].Count() > 0; }

  typ_Entry const* Row(unsigned int typeId) const {
    return typeId >> 16 < modules.size() ? modules[typeId >> 16].Row(typeId & 0xFFFF) : nullptr;
  }

  void AddNames(unsigned int moduleId) {
    for (int row = 1; row <= modules[moduleId].Count(); ++row) {
      unsigned int const id = moduleId << 16 | static_cast<unsigned int>(row);
      auto const [place, added] = idByName.try_emplace(Row(id)->name, id);
      if (!added) place->second = std::min(place->second, id);
    }
  }
};

Types& AllTypes() {
  static Types types;
  return types;
}

std::string Described(typ_ArchCompEntry entry) {
  return "\"" + std::string(entry.Row(1)->name) + "\" (" + std::to_string(entry.Count()) + " rows)";
}

}  // namespace

void typ_ArchCompTable::InsertEntry(unsigned short moduleId, typ_ArchCompEntry entry) {
  Types& types = AllTypes();
  if (entry.Count() == 0) return;
  if (types.IsEntered(moduleId)) {
    typ_ArchCompEntry const present = types.modules[moduleId];
    if (present == entry) return;
    std::string const text = "Type table of module " + std::to_string(moduleId) + " is that of " + Described(present) +
                             "; that of " + Described(entry) + " cannot be entered.";
    nex_PrimException<cow_String, 3>(text).Throw(__FILE__, __LINE__);
  }
  if (types.modules.size() <= moduleId) types.modules.resize(moduleId + 1u, typ_ArchCompEntry(nullptr, 0));
  types.modules[moduleId] = entry;
  types.AddNames(moduleId);
}

void typ_ArchCompTable::RemoveEntry(unsigned short moduleId) {
  Types& types = AllTypes();
  if (!types.IsEntered(moduleId)) return;
  types.modules[moduleId] = typ_ArchCompEntry(nullptr, 0);
  // A name of this module may stand for a type of another one from now on.
  types.idByName.clear();
  for (unsigned int i = 0; i < types.modules.size(); ++i) types.AddNames(i);
}

char const* typ_ArchCompTable::GetName(unsigned int typeId) noexcept {
  typ_Entry const* const row = AllTypes().Row(typeId);
  return row == nullptr ? "" : row->name;
}

unsigned int typ_ArchCompTable::GetParent(unsigned int typeId) noexcept {
  typ_Entry const* const row = AllTypes().Row(typeId);
  return row == nullptr ? 0 : row->parent;
}

bool typ_ArchCompTable::IsParent(unsigned int parent, unsigned int child) noexcept {
  // No class tree is nearly this deep: a longer walk goes round in a faulty table.
  constexpr int deepest = 1000;
  for (int level = 0; child != 0 && level < deepest; ++level) {
    if (child == parent) return true;
    child = GetParent(child);
  }
  return false;
}

unsigned int typ_ArchCompTable::FindId(char const* name) {
  auto const& idByName = AllTypes().idByName;
  auto const found = idByName.find(name);
  return found == idByName.end() ? 0 : found->second;
}
