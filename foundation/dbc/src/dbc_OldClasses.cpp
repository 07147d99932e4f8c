#include "dbc_OldClasses.h"

#include <string_view>

namespace {

/// A shape while it is followed back from the present.
struct Shape {
  unsigned int base = 0;
  std::vector<cls_DeclaredAttribute> attributes = {};
};

Shape ShapeOf(cls_ClassMetadata const* metadata) {
  return metadata == nullptr ? Shape() : Shape{metadata->ParentTypeId(), metadata->Declared()};
}

dbc_OldLink const* FindLink(dbc_History const& history, std::string_view family, int version) {
  auto const found = std::find_if(history.links.begin(), history.links.end(), [&](dbc_OldLink const& link) {
    return link.family == family && link.version == version;
  });
  return found == history.links.end() ? nullptr : &*found;
}

dbc_RenamedClass const* FindRenamed(dbc_History const& history, std::string_view family) {
  auto const found = std::find_if(history.renamed.begin(), history.renamed.end(),
                                  [&](dbc_RenamedClass const& each) { return each.family == family; });
  return found == history.renamed.end() ? nullptr : &*found;
}

Shape ShapeAt(dbc_History const& history, dbc_OldFamily const& family, std::size_t number);

/// What the last old shape goes to: the present class, or the oldest shape of its new name. The base that a renamed
/// class had is told by its links.
Shape LastShape(dbc_History const& history, dbc_OldFamily const& family) {
  dbc_RenamedClass const* const renamed = FindRenamed(history, family.name);
  if (renamed == nullptr) {
    return ShapeOf(cls_ClassRegistrar::Present().Find(history.IdOf(family)));
  }
  std::size_t const successor = history.Find(renamed->newName);
  Shape shape = successor == history.families.size() ? ShapeOf(cls_ClassRegistrar::Present().Find(renamed->newId))
                                                     : ShapeAt(history, history.families[successor], 0);
  shape.base = 0;
  return shape;
}

Shape ShapeAt(dbc_History const& history, dbc_OldFamily const& family, std::size_t number) {
  Shape shape = LastShape(history, family);
  for (std::size_t n = family.versions.count; n-- > number;) {
    dbc_OldLink const* const link = FindLink(history, family.name, family.versions.numbers[n].version);
    if (link == nullptr) continue;
    for (char const* const key : link->added) {
      std::erase_if(shape.attributes, [&](cls_DeclaredAttribute const& each) { return each.field.name.View() == key; });
    }
    for (dbc_OldAttribute const& before : link->before) {
      auto const same = std::find_if(shape.attributes.begin(), shape.attributes.end(),
                                     [&](auto const& each) { return each.field.name.View() == before.key; });
      bool const added = same == shape.attributes.end();
      int const ordinal = added ? static_cast<int>(shape.attributes.size()) : same->field.ordinal;
      cls_DeclaredAttribute const attribute{{ordinal, before.key}, before.type, before.typeId, before.collection};
      if (added) {
        shape.attributes.push_back(attribute);
      } else {
        *same = attribute;
      }
    }
    if (link->base != nullptr) shape.base = history.FindId(link->base);
  }
  return shape;
}

/// The old classes that a module has registered.
std::vector<cow_CountedHld<dbc_OldClassVersion>>& RegisteredOf(dbc_History const& history) {
  static std::map<dbc_History const*, std::vector<cow_CountedHld<dbc_OldClassVersion>>> registered;
  return registered[&history];
}

}  // namespace

dbc_OldPlace dbc_OldPlace::At(dbc_History const& history, std::size_t n) {
  std::size_t family = 0;
  while (n >= history.families[family].versions.count) n -= history.families[family++].versions.count;
  return {history, history.families[family], n};
}

unsigned int dbc_OldPlace::Group() const {
  unsigned int const own = family.versions.numbers[number].group;
  return own == 0 ? family.group : own;
}

dbc_OldLink const* dbc_OldPlace::Link() const { return FindLink(history, family.name, Version()); }

dbc_RenamedClass const* dbc_OldPlace::Renamed() const { return FindRenamed(history, family.name); }

void dbc_OldPlace::InitializeMetadata(cls_ClassRegistrar& registrar) const {
  Shape const shape = ShapeAt(history, family, number);
  cls_ClassMetadata& metadata = registrar.CreateClassMD(family.name, history.IdOf(family), Version(), nullptr,
                                                        shape.base == 0 ? 1 : shape.base);
  for (cls_DeclaredAttribute const& attribute : shape.attributes) {
    metadata.AddAttribute(attribute.field, attribute.type, attribute.typeId, attribute.collection);
  }
}

void dbc_OldPlace::SchemaChanges(dbc_DatabaseConverter& converter) const {
  dbc_OldLink const* const link = Link();
  int next = IsLast() ? family.last : family.versions.numbers[number + 1].version;
  if (link != nullptr && link->next != 0) next = link->next;
  if (next == dbc_Removed || next == Version()) return;
  dbc_ClassConverter& upgrade = converter.GetConverter(next).Upgrade(family.name, history.IdOf(family), Version());
  if (link != nullptr) {
    upgrade.BindConversionFunction(link->row);
    upgrade.BindFinalizeFunction(link->finalize);
  }
}

void dbc_OldPlace::ClassesToDelete(dbc_DatabaseConverter& converter) const {
  if (!IsLast() || family.last != dbc_Removed) return;
  unsigned int const id = history.IdOf(family);
  converter.DeletedClasses().Prepend(id);
  converter.InputSchema().DeleteClass(family.name, id);
  converter.OutputSchema().DeleteClass(family.name, id);
}

void dbc_OldPlace::ClassesToRename(dbc_DatabaseConverter& converter) const {
  if (dbc_RenamedClass const* const renamed = Renamed(); renamed != nullptr && IsLast()) {
    converter.RenamedClasses().Insert(family.name, renamed->newName);
  }
}

void dbc_OldPlace::TablesToRename(dbc_DatabaseConverter& converter) const {
  dbc_RenamedClass const* const renamed = Renamed();
  if (renamed == nullptr || !IsLast()) return;
  dbc_Table table = converter.RenameTable(family.name, renamed->oldId, Version(), renamed->newId, renamed->file);
  if (!table.IsNull() && renamed->finish != nullptr) renamed->finish(converter, renamed->oldId, table);
}

void dbc_EnterOldClasses(dbc_History const& history, std::vector<cow_CountedHld<dbc_OldClassVersion>> versions) {
  for (std::size_t n = 0; n < versions.size(); ++n) {
    dbc_OldClassRegistrar::Instance().Register(&versions[n], dbc_OldPlace::At(history, n).Group());
  }
  RegisteredOf(history) = std::move(versions);
}

void dbc_RemoveOldClasses(dbc_History const& history) {
  dbc_OldClassRegistrar& registrar = dbc_OldClassRegistrar::Instance();
  for (auto const& version : RegisteredOf(history)) registrar.Unregister(version.GetPtr());
  RegisteredOf(history).clear();
  if (registrar.IsEmpty()) dbc_OldClassRegistrar::Finalize();
}
