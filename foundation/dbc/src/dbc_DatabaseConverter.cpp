#include "dbc_DatabaseConverter.h"

#include <algorithm>

#include "atr_String.h"
#include "nex_Exception.h"
#include "typ_ArchCompTable.h"

namespace {

bool SameForm(cls_DeclaredAttribute const& a, cls_DeclaredAttribute const& b) {
  return a.field.name == b.field.name && a.type == b.type && a.collection == b.collection;
}

std::size_t ColumnsOf(cls_DeclaredAttribute const& attribute) {
  bool const object =
      attribute.type == cls_AttributeType::Object || attribute.type == cls_AttributeType::Reference;
  return object && attribute.collection == cls_CollectionType::Single ? 2 : 1;
}

/// A table of the next shape with all that the old one has in the same form. `keep` leaves the old table whole.
std::unique_ptr<cls_Table> NextShape(cls_Table& old, cls_ClassMetadata const& shape, int version, bool keep) {
  cls_Database scratch;
  scratch.AddTable(shape.TypeId(), shape.Name(), version, shape.ParentTypeId());
  std::unique_ptr<cls_Table> next = std::move(scratch.tables.front());
  next->uids = old.uids;
  auto const take = [&](std::size_t from, std::size_t to) {
    cls_Column& source = old.columns[from];
    cls_Column& target = next->columns[to];
    target.words = keep ? source.words : std::move(source.words);
    target.doubles = keep ? source.doubles : std::move(source.doubles);
  };
  if (old.parentTypeId != 0 && shape.ParentTypeId() != 0) {
    take(0, 0);
  }
  for (cls_DeclaredAttribute const& attribute : shape.Declared()) {
    std::size_t from = old.parentTypeId == 0 ? 0 : 1;
    for (cls_DeclaredAttribute const& stored : old.declared) {
      if (SameForm(stored, attribute)) {
        auto const to = static_cast<std::size_t>(next->AddColumns(attribute));
        for (std::size_t i = 0; i < ColumnsOf(attribute); ++i) {
          take(from + i, to + i);
        }
      }
      from += ColumnsOf(stored);
    }
  }
  next->Complete();
  return next;
}

/// Makes a converter the present one for a scope.
class PresentConverter {
 public:
  explicit PresentConverter(dbc_DatabaseConverter& converter)
      : before_(dbc_DatabaseConverterHolder::Instance().SetDatabaseConverter(&converter)) {}
  ~PresentConverter() { dbc_DatabaseConverterHolder::Instance().SetDatabaseConverter(before_); }
  PresentConverter(PresentConverter const&) = delete;
  PresentConverter& operator=(PresentConverter const&) = delete;

 private:
  dbc_DatabaseConverter* before_;
};

std::string Stored(cls_Table const& table) {
  return std::string("class ") + table.name.CStr() + " has version " + std::to_string(table.version);
}

/// The first attribute of a stored table that the class did not have in that version, or had in another form.
cls_DeclaredAttribute const* FirstUnknownAttribute(cls_Table const& table, cls_ClassMetadata const& shape) {
  for (cls_DeclaredAttribute const& stored : table.declared) {
    auto const known = [&](cls_DeclaredAttribute const& each) { return SameForm(each, stored); };
    auto const same = [&](cls_DeclaredAttribute const& each) { return each.field.name == stored.field.name; };
    if (std::none_of(shape.Declared().begin(), shape.Declared().end(), known) ||
        std::count_if(table.declared.begin(), table.declared.end(), same) > 1) {
      return &stored;
    }
  }
  return nullptr;
}

/// The classes that go and those that get another name, as the old classes list them.
struct Departures {
  Departures() {
    cls_Database none;
    dbc_DatabaseConverter converter(none);
    for (auto const& entry : dbc_OldClassRegistrar::Instance().InOrder()) {
      entry.version.GetRef().ClassesToDelete(converter);
      entry.version.GetRef().ClassesToRename(converter);
    }
    deleted = converter.DeletedClasses();
    renamed = converter.RenamedClasses();
  }
  cow_List<unsigned int> deleted;
  cow_Map<cow_String, cow_String> renamed;
};

}  // namespace

dbc_ClassConverter& dbc_Converter::Upgrade(cow_String const&, unsigned int const& typeId, int oldVersion) {
  links_.push_back(std::make_unique<dbc_ClassConverter>(typeId, oldVersion));
  return *links_.back();
}

dbc_InputDatabase::dbc_InputDatabase(cls_Database& database) : database_(database) {
  for (auto const& table : database.tables) {
    tables_[table->typeId] = table.get();
  }
}

dbc_Table dbc_InputDatabase::GetInputTable(unsigned int const& typeId) const {
  auto const found = tables_.find(typeId);
  return found == tables_.end() ? dbc_Table() : dbc_Table(database_, *found->second);
}

dbc_Table dbc_OutputDatabase::GetOutputTable(unsigned int const& typeId) {
  cls_Database& database = converter_.database_;
  cls_Table* table = database.FindTable(typeId);
  cls_ClassMetadata const* const present = cls_ClassRegistrar::Present().Find(typeId);
  if (table == nullptr) {
    if (present == nullptr) {
      return {};
    }
    // In the shape of the newest version that is not above the revision in work, or in the oldest.
    std::vector<int> versions = dbc_OldClassRegistrar::Instance().Versions(typeId);
    versions.push_back(present->Version());
    int version = versions.front();
    for (int const each : versions) {
      version = each <= converter_.revision_ ? each : version;
    }
    cls_ClassMetadata const& shape = *converter_.ShapeAt(typeId, version);
    table = &database.AddTable(typeId, shape.Name(), version, shape.ParentTypeId());
  }
  return {database, *table, converter_.ShapeAt(typeId, table->version)};
}

dbc_Table dbc_OutputDatabase::GetTempTable(unsigned int const& typeId, cow_String const&, int version) {
  converter_.BringUp(typeId, version);
  cls_Table* const table = converter_.database_.FindTable(typeId);
  bool const there = table != nullptr && table->version == version;
  return there ? dbc_Table(converter_.database_, *table, converter_.ShapeAt(typeId, version)) : dbc_Table();
}

dbc_DatabaseConverter::dbc_DatabaseConverter(cls_Database& database)
    : database_(database), input_(database), output_(*this) {
  for (auto const& table : database.tables) {
    if (cls_ClassMetadata const* const shape = ShapeAt(table->typeId, table->version)) {
      inputSchema_.AddClassMD(new cls_ClassMetadata(*shape));
    }
  }
}

dbc_DatabaseConverter::~dbc_DatabaseConverter() = default;

bool dbc_DatabaseConverter::IsOld(cls_Database const& database) {
  return std::any_of(database.tables.begin(), database.tables.end(), [](auto const& table) {
    cls_ClassMetadata const* const present = cls_ClassRegistrar::Present().Find(table->typeId);
    return present == nullptr || present->Version() != table->version;
  });
}

std::string dbc_DatabaseConverter::FirstUnknown(cls_Database const& database) {
  auto const notKnown = [](cls_Table const& table) {
    return " and identifier " + std::to_string(table.typeId) + ", which this release does not know";
  };
  auto const notThere = [](cls_DeclaredAttribute const& unknown) {
    return std::string(" and an attribute ") + unknown.field.name.CStr() + " that this version does not have";
  };
  std::unique_ptr<Departures> departures;
  for (auto const& table : database.tables) {
    cls_ClassMetadata const* const present = cls_ClassRegistrar::Present().Find(table->typeId);
    if (present != nullptr && present->Version() == table->version) {
      if (!(present->Name() == table->name)) {
        return Stored(*table) + notKnown(*table);
      }
      if (cls_DeclaredAttribute const* const unknown = FirstUnknownAttribute(*table, *present)) {
        return Stored(*table) + notThere(*unknown);
      }
      if (present->ParentTypeId() != table->parentTypeId || present->Declared() != table->declared) {
        return Stored(*table) + " as in this release, but other attributes";
      }
      continue;
    }
    if (departures == nullptr) {
      departures = std::make_unique<Departures>();
    }
    cls_ClassMetadata const* const old = dbc_OldClassRegistrar::Instance().Find(table->typeId, table->version);
    std::vector<int> versions = dbc_OldClassRegistrar::Instance().Versions(table->typeId);
    bool const known = old == nullptr ? !versions.empty() || (present != nullptr && present->Name() == table->name)
                                      : old->Name() == table->name ||
                                            table->name == typ_ArchCompTable::GetName(table->typeId);
    bool const goes = departures->deleted.IsMember(table->typeId);
    if (!known || (present == nullptr && !goes)) {
      return Stored(*table) + notKnown(*table);
    }
    if (old == nullptr) {
      if (present != nullptr) {
        versions.push_back(present->Version());
      }
      std::string reads;
      for (int const version : versions) {
        reads += (reads.empty() ? "" : ", ") + std::to_string(version);
      }
      return Stored(*table) + ", this release reads version " + reads;
    }
    bool const renamed = departures->renamed.IsMember(old->Name());
    if (goes && !renamed) {
      continue;  // It is dropped, whatever it holds.
    }
    // Of a renamed class the base is known only if a link tells it.
    bool const baseTold = !renamed || old->ParentTypeId() != 0;
    if (baseTold && old->ParentTypeId() != table->parentTypeId) {
      return Stored(*table) + " and another base than that version has";
    }
    if (cls_DeclaredAttribute const* const unknown = FirstUnknownAttribute(*table, *old)) {
      return Stored(*table) + notThere(*unknown);
    }
  }
  return {};
}

void dbc_DatabaseConverter::Run() {
  PresentConverter const present(*this);
  Collect();
  RenameTables();
  WalkChains();
  DropDeleted();
  FollowReferences();
  database_.Complete();
}

void dbc_DatabaseConverter::Collect() {
  for (auto const& entry : dbc_OldClassRegistrar::Instance().InOrder()) {
    dbc_OldClassVersion& version = entry.version.GetRef();
    version.ClassesToDelete(*this);
    version.ClassesToRename(*this);
    version.SchemaChanges(*this);
  }
}

void dbc_DatabaseConverter::RenameTables() {
  for (auto const& entry : dbc_OldClassRegistrar::Instance().InOrder()) {
    entry.version.GetRef().TablesToRename(*this);
  }
}

void dbc_DatabaseConverter::WalkChains() {
  for (auto const& [version, converter] : converters_) {
    revision_ = version;
    for (auto const& link : converter.Links()) {
      Apply(*link, version);
    }
  }
}

/// What the class declares at that version: an old version, a number between two of them, or the present one.
cls_ClassMetadata const* dbc_DatabaseConverter::ShapeAt(unsigned int typeId, int version) const {
  cls_ClassMetadata const* const present = cls_ClassRegistrar::Present().Find(typeId);
  if (present != nullptr && present->Version() == version) {
    return present;
  }
  cls_ClassMetadata const* const old = dbc_OldClassRegistrar::Instance().FindFrom(typeId, version);
  return old == nullptr ? present : old;
}

void dbc_DatabaseConverter::BringUp(unsigned int typeId, int version) {
  for (auto const& [revision, converter] : converters_) {
    for (auto const& link : converter.Links()) {
      if (revision <= version && link->TypeId() == typeId) {
        Apply(*link, revision);
      }
    }
  }
}

void dbc_DatabaseConverter::Apply(dbc_ClassConverter const& link, int version) {
  cls_Table* const found = database_.FindTable(link.TypeId());
  // A table between two numbers of the chain goes on with the next link.
  if (found == nullptr || found->version > link.OldVersion() || found->version == version) {
    return;
  }
  cls_ClassMetadata const* const shape = ShapeAt(link.TypeId(), version);
  if (shape == nullptr) {
    return;
  }
  bool const functions = link.ConversionFunction() != nullptr || link.FinalizeFunction() != nullptr;
  auto const stored = input_.tables_.find(link.TypeId());
  bool const isInput = stored != input_.tables_.end() && stored->second == found;
  std::unique_ptr<cls_Table> old = database_.Replace(NextShape(*found, *shape, version, functions || isInput));
  if (functions) {
    dbc_Table const oldTable(database_, *old);
    dbc_Table newTable(database_, *database_.FindTable(link.TypeId()), shape);
    for (std::uint32_t row = 0; link.ConversionFunction() != nullptr && row < old->Rows(); ++row) {
      dbc_Row newRow(newTable, row);
      link.ConversionFunction()(dbc_Row(oldTable, row), newRow, static_cast<int>(row));
    }
    if (link.FinalizeFunction() != nullptr) {
      link.FinalizeFunction()(oldTable, newTable);
    }
  }
  if (isInput) {
    superseded_.push_back(std::move(old));
  }
}

dbc_Table dbc_DatabaseConverter::RenameTable(cow_String const& oldName, unsigned int oldTypeId, int oldVersion,
                                             unsigned int newTypeId, char const* file) {
  if (!input_.HasInputTable(oldTypeId)) {
    return {};
  }
  dbc_Table input = input_.GetInputTable(oldTypeId);
  dbc_Table const output = output_.GetOutputTable(newTypeId);
  if (input.Version() < oldVersion && input.Rows() > 0) {
    input = output_.GetTempTable(oldTypeId, oldName, oldVersion);
  }
  auto const refuse = [&](char const* what) {
    std::string const text = std::string("rename_") + oldName.CStr() + " failed: " + what + " can't be NULL";
    nex_PrimException<atr_String, 1>(atr_translate(text.c_str()).Result()).Throw(file, __LINE__);
  };
  if (output.IsNull()) {
    refuse("outputTable");
  }
  if (input.IsNull()) {
    refuse("inputTable");
  }
  if (output.Rows() > 0 && input.Rows() == 0) {
    newTypeIds_[oldTypeId] = newTypeId;
    return {};
  }
  if (output.Rows() > 0) {
    cls_RefuseStored(oldName.View(), cls_NoRow, "has rows under its new name, too");
  }
  cls_ClassMetadata const& shape = *ShapeAt(newTypeId, output.Version());
  // Rows keep their numbers, so references need only the new class.
  std::unique_ptr<cls_Table> empty =
      database_.Replace(NextShape(input.Cells(), shape, output.Version(), true));
  if (auto const stored = input_.tables_.find(newTypeId); stored != input_.tables_.end()) {
    superseded_.push_back(std::move(empty));
  }
  newTypeIds_[oldTypeId] = newTypeId;
  return output_.GetOutputTable(newTypeId);
}

void dbc_DatabaseConverter::DropDeleted() {
  for (unsigned int const typeId : deleted_) {
    if (std::unique_ptr<cls_Table> gone = database_.Remove(typeId)) {
      newTypeIds_.emplace(typeId, 0);
      superseded_.push_back(std::move(gone));
    }
  }
}

/// References to renamed classes get the new class; those to dropped rows become none, and lists and maps lose them.
void dbc_DatabaseConverter::FollowReferences() {
  if (newTypeIds_.empty()) {
    return;
  }
  constexpr unsigned int stays = cls_NoRow;
  unsigned int lastId = 0;
  unsigned int lastNew = stays;
  auto const newId = [&](unsigned int classId) {
    if (classId != lastId) {
      auto const found = newTypeIds_.find(classId);
      lastId = classId;
      lastNew = found == newTypeIds_.end() ? stays : found->second;
    }
    return lastNew;
  };
  for (auto const& table : database_.tables) {
    for (std::size_t c = 0; c < table->columns.size(); ++c) {
      cls_Column& column = table->columns[c];
      if (column.kind == cls_CellKind::Row && newId(column.target) == 0) {
        std::fill(column.words.begin(), column.words.end(), cls_NoRow);
      }
      for (std::size_t row = 0; column.kind == cls_CellKind::ClassId && row < column.words.size(); ++row) {
        unsigned int const id = newId(column.words[row]);
        if (id != stays) {
          column.words[row] = id;
          if (id == 0) {
            table->columns[c + 1].words[row] = cls_NoRow;
          }
        }
      }
    }
  }
  for (cls_Collection& collection : database_.collections) {
    std::uint32_t const width = cls_ElementWords(collection.kind);
    std::uint32_t classPlace = 0;
    switch (collection.kind) {
      case cls_CollectionType::ObjectList:
        break;
      case cls_CollectionType::ObjectMap:
      case cls_CollectionType::ObjectMapById:
        classPlace = 1;
        break;
      default:
        continue;
    }
    std::uint32_t kept = 0;
    for (std::uint32_t element = 0; element < collection.count; ++element) {
      auto const from = database_.words.begin() + (collection.first + static_cast<std::ptrdiff_t>(width) * element);
      unsigned int const id = newId(*(from + classPlace));
      if (id != stays) {
        *(from + classPlace) = id;
      }
      if (id != 0) {
        auto const to = database_.words.begin() + (collection.first + static_cast<std::ptrdiff_t>(width) * kept++);
        std::copy_n(from, width, to);
      }
    }
    collection.count = kept;
  }
  if (unsigned int const id = newId(database_.rootTypeId); id != stays && database_.rootRow != cls_NoRow) {
    if (id == 0) {
      cls_RefuseStored("root", cls_NoRow, "is of a class that this release does not have");
    }
    database_.rootTypeId = id;
  }
}
