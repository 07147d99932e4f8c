#include "typ_Module.h"

#include <string>
#include <string_view>
#include <unordered_map>

#include "nex_Exception.h"

typ_Module::typ_Module(unsigned short moduleId, std::span<typ_Row const> rows) : moduleId_(moduleId) {
  std::unordered_map<std::string_view, unsigned int> ownIds;
  for (typ_Row const& row : rows) {
    ownIds.emplace(row.name, static_cast<unsigned int>(moduleId) << 16 | static_cast<unsigned int>(row.row));
  }
  auto const parentOf = [&](typ_Row const& row) -> unsigned int {
    if (*row.parent == '\0') return 0;
    auto const own = ownIds.find(row.parent);
    unsigned int const parent = own != ownIds.end() ? own->second : typ_ArchCompTable::FindId(row.parent);
    if (parent == 0) {
      std::string const text = "Type table of module " + std::to_string(moduleId) + ", row " + std::to_string(row.row) +
                               " (\"" + row.name + "\"): the parent \"" + row.parent + "\" is unknown.";
      nex_PrimException<cow_String, 3>(text).Throw(__FILE__, __LINE__);
    }
    return parent;
  };
  constexpr int classKind = 7;
  table_.reserve(rows.size());
  for (typ_Row const& row : rows) table_.push_back({row.name, classKind, parentOf(row)});
}
