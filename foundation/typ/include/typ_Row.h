#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

/// One row of a module's list of types: rows are numbered from 1 without gaps; the parent is named, "" for none.
/// Numbers are stored in databases: a retired type keeps its row.
struct typ_Row {
  int row;
  char const* name;
  char const* parent;
};

/// Whether the rows stand at their numbers and no name occurs twice.
template <std::size_t N>
constexpr bool typ_RowsInOrder(typ_Row const (&rows)[N]) {
  std::array<std::string_view, N> names{};
  for (std::size_t i = 0; i < N; ++i) {
    if (rows[i].row != static_cast<int>(i) + 1) return false;
    names[i] = rows[i].name;
  }
  std::sort(names.begin(), names.end());
  return !names.front().empty() && std::adjacent_find(names.begin(), names.end()) == names.end();
}

/// The identifier of the class `name` by its module's list; a name that the list lacks does not compile.
template <std::size_t N>
consteval unsigned int typ_Id(unsigned int moduleId, typ_Row const (&rows)[N], std::string_view name) {
  for (typ_Row const& row : rows) {
    if (name == row.name) return (moduleId << 16) | static_cast<unsigned int>(row.row);
  }
  throw "the module's list of types lacks this name";
}
