#include "dbc_ModelFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "cls_Codec.h"
#include "cls_Registrar.h"
#include "dbc_Bytes.h"
#include "dbc_Coding.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_FileHeader.h"
#include "dbc_NewFile.h"
#include "nex_Exception.h"

namespace {

using StoredRefusal = nex_PrimException<cow_String, 2>;

/// The bytes of a file that is open for reading.
struct FileBytes {
  std::unique_ptr<std::uint8_t[]> bytes;
  std::size_t length = 0;

  std::span<std::uint8_t const> View() const { return {bytes.get(), length}; }
};

/// A file descriptor that ends with its scope.
class OpenFile {
 public:
  explicit OpenFile(std::string const& path) : path_(path), file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (file_ < 0) {
      dbc_RefuseSystem(path_, "cannot be opened");
    }
  }
  ~OpenFile() { ::close(file_); }
  OpenFile(OpenFile const&) = delete;
  OpenFile& operator=(OpenFile const&) = delete;

  std::uint64_t Length() const {
    struct stat status = {};
    if (::fstat(file_, &status) != 0) {
      dbc_RefuseSystem(path_, "cannot be opened");
    }
    if (!S_ISREG(status.st_mode)) {
      errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
      dbc_RefuseSystem(path_, "cannot be opened");
    }
    return static_cast<std::uint64_t>(status.st_size);
  }
  /// Reads exactly that many bytes.
  void Read(std::uint8_t* to, std::size_t count) const {
    for (std::size_t done = 0; done < count;) {
      ssize_t const read = ::read(file_, to + done, count - done);
      if (read == 0) {
        dbc_RefuseDamage(path_, "header", 16, "the file became shorter while it was read");
      }
      if (read < 0 && errno != EINTR) {
        dbc_RefuseSystem(path_, "cannot be read");
      }
      done += read < 0 ? 0 : static_cast<std::size_t>(read);
    }
  }

 private:
  std::string const& path_;
  int file_;
};

/// All bytes of a file. Its header is checked before memory is taken for the rest.
FileBytes ReadFile(std::string const& path) {
  OpenFile const file(path);
  std::uint64_t const length = file.Length();
  std::uint8_t header[dbc_HeaderSize];
  auto const start = static_cast<std::size_t>(std::min<std::uint64_t>(length, sizeof header));
  file.Read(header, start);
  dbc_ReadHeader({header, start}, length, path);
  FileBytes read{std::make_unique_for_overwrite<std::uint8_t[]>(static_cast<std::size_t>(length)),
                 static_cast<std::size_t>(length)};
  std::copy_n(header, start, read.bytes.get());
  file.Read(read.bytes.get() + start, read.length - start);
  return read;
}

/// What a file holds and what it is called, for refusals of what was found in its tables.
class StoredModel {
 public:
  StoredModel(std::span<std::uint8_t const> file, cow_String const& name)
      : name_(name), decoded_(dbc_DecodeSections(file, name)) {}

  dbc_DecodedFile& Decoded() { return decoded_; }

  /// Runs `act`; a refusal of stored data comes out with the file, the section and its offset.
  template <class Act>
  auto Checked(Act act) const {
    try {
      return act();
    } catch (StoredRefusal const& refusal) {
      RefuseInSection(refusal.what());
    } catch (nex_CmdException<cow_String, 1> const& unknownName) {
      Refuse(dbc_SectionKind::Strings, unknownName.what());
    }
  }
  [[noreturn]] void Refuse(dbc_SectionKind kind, std::string const& reason) const {
    auto const section = std::find_if(decoded_.sections.begin(), decoded_.sections.end(),
                                      [&](dbc_Section const& each) { return each.kind == kind; });
    dbc_RefuseDamage(name_.View(), section->name, section->offset, reason);
  }

 private:
  /// The message begins with the place: a class or the name of a section.
  [[noreturn]] void RefuseInSection(std::string_view message) const {
    constexpr std::string_view table = "table ";
    dbc_Section const* best = &decoded_.sections.front();
    std::size_t bestLength = 0;
    for (dbc_Section const& section : decoded_.sections) {
      std::string_view place = section.name;
      place.remove_prefix(place.starts_with(table) ? table.size() : 0);
      bool const here = message.starts_with(place) && place.size() < message.size() &&
                        (message[place.size()] == ',' || message[place.size()] == ':');
      if (here && place.size() > bestLength) {
        best = &section;
        bestLength = place.size();
      }
    }
    message.remove_prefix(bestLength == 0 ? 0 : bestLength + 2);
    dbc_RefuseDamage(name_.View(), best->name, best->offset, message);
  }

  cow_String name_;
  dbc_DecodedFile decoded_;
};

/// Counts what refers to each thing of a kind that belongs to one place only.
class Owners {
 public:
  explicit Owners(std::size_t things) : owned_(things) {}
  void Take(std::uint32_t thing, std::string_view place, std::uint32_t row, char const* what) {
    if (thing >= owned_.size() || owned_[thing]) {
      cls_RefuseStored(place, row, what);
    }
    owned_[thing] = true;
  }

 private:
  std::vector<bool> owned_;
};

/// Collections and rows of base classes have one owner each: else a small file could make a load read the same elements
/// again and again.
void CheckOwners(cls_Database const& database) {
  constexpr char const* collectionTaken = "refers to a collection that is not there or belongs to another";
  Owners collections(database.collections.size());
  std::vector<Owners> bases;
  for (auto const& table : database.tables) {
    bases.emplace_back(table->uids.size());
  }
  for (auto const& table : database.tables) {
    for (cls_Column const& column : table->columns) {
      cls_Table const* const parent =
          column.kind == cls_CellKind::Row ? database.FindTable(column.target) : nullptr;
      bool const ofCollections = column.kind == cls_CellKind::Collection;
      for (std::uint32_t row = 0; (ofCollections || parent != nullptr) && row < column.words.size(); ++row) {
        std::uint32_t const word = column.words[row];
        if (word != cls_NoRow && ofCollections) {
          collections.Take(word, table->name.View(), row, collectionTaken);
        } else if (word != cls_NoRow) {
          bases[parent->index].Take(word, table->name.View(), row,
                                    "refers to a row of its base class that is not there or belongs to another");
        }
      }
    }
  }
  for (std::uint32_t i = 0; i < database.collections.size(); ++i) {
    cls_Collection const& outer = database.collections[i];
    if (outer.kind == cls_CollectionType::DoubleListList || outer.kind == cls_CollectionType::IntListList) {
      for (std::uint32_t element = 0; element < outer.count; ++element) {
        collections.Take(database.words[outer.first + element], "collections", i, collectionTaken);
      }
    }
  }
}

void CheckReferences(cls_Database const& database) {
  cls_ReadSession const session(database);
  CheckOwners(database);
}

/// Brings all tables to the present versions. Nothing is built before all classes and attributes are known.
void Convert(StoredModel& model) {
  cls_Database& database = model.Decoded().database;
  if (std::string const unknown = dbc_DatabaseConverter::FirstUnknown(database); !unknown.empty()) {
    model.Refuse(dbc_SectionKind::Classes, unknown);
  }
  if (dbc_DatabaseConverter::IsOld(database)) {
    model.Checked([&] {
      CheckReferences(database);
      dbc_DatabaseConverter(database).Run();
    });
  }
}

std::unique_ptr<cls_Persistent> ReadObject(StoredModel model) {
  Convert(model);
  cls_Database const& database = model.Decoded().database;
  return model.Checked([&] {
    cls_ReadSession session(database);
    CheckOwners(database);
    cls_ReadVisitor reader(session);
    return std::unique_ptr<cls_Persistent>(cls_ConstructStored(reader));
  });
}

}  // namespace

std::vector<std::uint8_t> dbc_EncodeDatabase(cls_Database const& database, int schemaRevision) {
  // What could not be opened again is not written.
  if (schemaRevision < 0 || schemaRevision > dbc_SchemaRevision) {
    cls_RefuseStored("header", cls_NoRow, "the schema revision is none that this release reads");
  }
  CheckReferences(database);
  return dbc_AssembleFile(schemaRevision, dbc_EncodeSections(database));
}

cls_Database dbc_DecodeDatabase(std::span<std::uint8_t const> file, cow_String const& name, int* schemaRevision) {
  StoredModel model(file, name);
  dbc_DecodedFile& decoded = model.Decoded();
  model.Checked([&] { CheckReferences(decoded.database); });
  if (schemaRevision != nullptr) {
    *schemaRevision = decoded.schemaRevision;
  }
  return std::move(decoded.database);
}

std::vector<std::uint8_t> dbc_EncodeObject(cls_Persistent const& root) {
  cls_Database database;
  cls_WriteSession session(database);
  root.DBWrite(cls_WriteVisitor(session));
  database.Complete();
  return dbc_AssembleFile(dbc_SchemaRevision, dbc_EncodeSections(database));
}

std::unique_ptr<cls_Persistent> dbc_DecodeObject(std::span<std::uint8_t const> file, cow_String const& name) {
  return ReadObject(StoredModel(file, name));
}

void dbc_SaveDatabase(cls_Database const& database, int schemaRevision, cow_String const& path) {
  dbc_ReplaceFile(path.CStr(), dbc_EncodeDatabase(database, schemaRevision));
}

cls_Database dbc_OpenDatabase(cow_String const& path, int* schemaRevision) {
  FileBytes const file = ReadFile(path.CStr());
  return dbc_DecodeDatabase(file.View(), path, schemaRevision);
}

void dbc_SaveObject(cls_Persistent const& root, cow_String const& path) {
  dbc_ReplaceFile(path.CStr(), dbc_EncodeObject(root));
}

std::unique_ptr<cls_Persistent> dbc_OpenObject(cow_String const& path) {
  std::string const name = path.CStr();
  StoredModel model = [&] {
    FileBytes const file = ReadFile(name);
    return StoredModel(file.View(), path);
  }();
  return ReadObject(std::move(model));
}

std::unique_ptr<cls_Persistent> dbc_OpenObject(cow_String const& path, unsigned int typeId) {
  std::unique_ptr<cls_Persistent> object = dbc_OpenObject(path);
  if (!cls_ClassRegistrar::InheritanceCheck(object->DynTypeId(), typeId)) {
    cls_ClassMetadata const* const wanted = cls_ClassRegistrar::Present().Find(typeId);
    std::string const wantedName = wanted == nullptr ? std::to_string(typeId) : wanted->Name().CStr();
    std::string const text =
        std::string(path.CStr()) + ": holds a " + object->DynAttributes().Name().CStr() + ", not a " + wantedName;
    StoredRefusal(cow_String(text)).Throw(__FILE__, __LINE__);
  }
  return object;
}
