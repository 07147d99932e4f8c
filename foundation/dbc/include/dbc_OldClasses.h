#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <utility>

#include "dbc_DatabaseConverter.h"
#include "ddr_Module.h"
#include "typ_Row.h"

// Old classes from tables. A module lists its families with the numbers at which they changed, the links that do more
// than carry over what has the same name and form, and the classes that have another name since.

/// A number of a family's chain, with a group if that is not the family's.
struct dbc_OldNumber {
  constexpr dbc_OldNumber(int number = 0, unsigned int ownGroup = 0) : version(number), group(ownGroup) {}

  int version;
  unsigned int group;
};

/// The numbers of one family, ascending.
struct dbc_OldNumbers {
  constexpr dbc_OldNumbers(std::initializer_list<dbc_OldNumber> list) {
    for (dbc_OldNumber const& number : list) numbers[count++] = number;
  }
  constexpr dbc_OldNumber const* begin() const { return numbers.data(); }
  constexpr dbc_OldNumber const* end() const { return numbers.data() + count; }

  std::array<dbc_OldNumber, 16> numbers = {};
  std::size_t count = 0;
};

/// What a family's last number goes to if it has no successor of its name.
inline constexpr int dbc_Removed = 0;

/// The old versions of one class, a row a family.
struct dbc_OldFamily {
  char const* name;
  unsigned int group;  ///< 1, 4 or 5
  dbc_OldNumbers versions;
  int last;                   ///< the present version, or dbc_Removed
  char const* storedAs = "";  ///< class whose type identifier the family has, if it has not its name
};

/// An attribute in a form that it has no longer.
struct dbc_OldAttribute {
  char const* key;
  cls_AttributeType type;
  unsigned int typeId = cls_PlainValueId;
  cls_CollectionType collection = cls_CollectionType::Single;
};

/// A link of a family that does more than carry over equal names: from the shape at `version` to the next.
struct dbc_OldLink {
  char const* family;
  int version;
  dbc_RowFunction row = nullptr;
  std::span<char const* const> added = {};        ///< attributes that the next shape has and this one has not
  std::span<dbc_OldAttribute const> before = {};  ///< attributes that have gone or another form since
  int next = 0;                                   ///< revision of the link, if it is not the next number of the chain
  dbc_FinalizeFunction finalize = nullptr;
  char const* base = nullptr;                     ///< base then, "" for none; null for the next shape's
};

/// A class that has another name since: its last number goes to the oldest shape of the new class.
struct dbc_RenamedClass {
  unsigned int oldId;
  char const* family;
  char const* newName;
  unsigned int newId;
  char const* file;  ///< position of refusals
  /// Called with the table under its new name, if the database has one; may be null.
  void (*finish)(dbc_DatabaseConverter& converter, unsigned int oldId, dbc_Table& table) = nullptr;
};

/// All that a module tells of its old classes. The spans are of static tables.
struct dbc_History {
  unsigned int moduleId;
  std::span<typ_Row const> types;
  std::span<dbc_OldFamily const> families;
  std::span<dbc_OldLink const> links = {};
  std::span<dbc_RenamedClass const> renamed = {};

  constexpr std::size_t Count() const {
    std::size_t count = 0;
    for (dbc_OldFamily const& family : families) count += family.versions.count;
    return count;
  }
  /// Names differ early, so this is cheaper at compile time than to measure them first.
  static constexpr bool Same(char const* a, char const* b) {
    while (*a != '\0' && *a == *b) ++a, ++b;
    return *a == *b;
  }
  /// The identifier of one of the module's types, 0 for a name that it lacks.
  constexpr unsigned int FindId(char const* name) const {
    for (typ_Row const& row : types) {
      if (Same(name, row.name)) return (moduleId << 16) | static_cast<unsigned int>(row.row);
    }
    return 0;
  }
  constexpr unsigned int IdOf(dbc_OldFamily const& family) const {
    return FindId(*family.storedAs == '\0' ? family.name : family.storedAs);
  }
  /// The place of a family, the number of families for a name that is none.
  constexpr std::size_t Find(char const* name) const {
    std::size_t place = 0;
    while (place < families.size() && !Same(name, families[place].name)) ++place;
    return place;
  }

  /// Whether all families are types of the module and their numbers rise.
  constexpr bool FamiliesAreSound() const {
    return std::all_of(families.begin(), families.end(), [&](dbc_OldFamily const& family) {
      auto const falls = [](dbc_OldNumber const& a, dbc_OldNumber const& b) { return a.version >= b.version; };
      auto const end = family.versions.end();
      bool const rises = std::adjacent_find(family.versions.begin(), end, falls) == end;
      return IdOf(family) != 0 && rises && family.versions.count > 0;
    });
  }
  /// Whether every link starts from a listed number.
  constexpr bool LinksAreSound() const {
    return std::all_of(links.begin(), links.end(), [&](dbc_OldLink const& link) {
      std::size_t const place = Find(link.family);
      if (place == families.size()) return false;
      dbc_OldNumbers const& versions = families[place].versions;
      return std::any_of(versions.begin(), versions.end(),
                         [&](dbc_OldNumber const& each) { return each.version == link.version; });
    });
  }
  /// Whether the renamed classes are families that end, and have the identifiers that stand beside their names.
  constexpr bool RenamedAreSound() const {
    return std::all_of(renamed.begin(), renamed.end(), [&](dbc_RenamedClass const& each) {
      std::size_t const place = Find(each.family);
      return place < families.size() && families[place].last == dbc_Removed && FindId(each.family) == each.oldId &&
             FindId(each.newName) == each.newId;
    });
  }
};

/// One number of one family: what an old class does, said once for all.
struct TVO_API dbc_OldPlace {
  dbc_History const& history;
  dbc_OldFamily const& family;
  std::size_t number;

  /// The place of the n-th number of all families.
  static dbc_OldPlace At(dbc_History const& history, std::size_t n);
  /// The number's own group, or the family's.
  unsigned int Group() const;

  // As in dbc_OldClassVersion. A shape is declared from the next one backwards; only a family's last number lists the
  // class as gone or renamed.
  void InitializeMetadata(cls_ClassRegistrar& registrar) const;
  void SchemaChanges(dbc_DatabaseConverter& converter) const;
  void ClassesToDelete(dbc_DatabaseConverter& converter) const;
  void ClassesToRename(dbc_DatabaseConverter& converter) const;
  void TablesToRename(dbc_DatabaseConverter& converter) const;

 private:
  bool IsLast() const { return number + 1 == family.versions.count; }
  int Version() const { return family.versions.numbers[number].version; }
  dbc_OldLink const* Link() const;
  dbc_RenamedClass const* Renamed() const;
};

/// The n-th old class of a module.
template <dbc_History const& history, std::size_t n>
class dbc_OldClass final : public dbc_OldClassVersion {
 public:
  void InitializeMetadata(cls_ClassRegistrar& registrar) override { Place().InitializeMetadata(registrar); }
  void SchemaChanges(dbc_DatabaseConverter& converter) override { Place().SchemaChanges(converter); }
  void ClassesToDelete(dbc_DatabaseConverter& converter) override { Place().ClassesToDelete(converter); }
  void ClassesToRename(dbc_DatabaseConverter& converter) override { Place().ClassesToRename(converter); }
  void TablesToRename(dbc_DatabaseConverter& converter) override { Place().TablesToRename(converter); }

 private:
  static dbc_OldPlace Place() { return dbc_OldPlace::At(history, n); }
};

/// Registers the old classes of a module, in the order of its numbers, and takes them out again.
TVO_API void dbc_EnterOldClasses(dbc_History const& history, std::vector<cow_CountedHld<dbc_OldClassVersion>> versions);
TVO_API void dbc_RemoveOldClasses(dbc_History const& history);

/// How a module enters its old classes at its start and takes them out at its end.
template <dbc_History const& history>
inline constexpr ddr_ModuleContainer dbc_OldClassesOf = {
    [] {
      static_assert(history.FamiliesAreSound() && history.LinksAreSound());
      static_assert(history.RenamedAreSound());
      []<std::size_t... n>(std::index_sequence<n...>) {
        dbc_EnterOldClasses(history, {cow_CountedHld<dbc_OldClassVersion>(new dbc_OldClass<history, n>())...});
      }(std::make_index_sequence<history.Count()>());
    },
    [] { dbc_RemoveOldClasses(history); }};
