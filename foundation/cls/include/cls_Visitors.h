#pragma once

#include <array>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "TVOExport.h"
#include "cls_Table.h"
#include "cls_Uid.h"

class cls_AttributeTable;
class cls_Persistent;

/// One number for each enumeration that a session caches; taken once per instantiation.
TVO_API int cls_NextCacheIndex();

/// The element of that index in a vector that grows as far as it is asked for.
template <class T>
T& cls_At(std::vector<T>& vector, int index) {
  auto const place = static_cast<std::size_t>(index);
  if (place >= vector.size()) {
    vector.resize(place + 1);
  }
  return vector[place];
}

/// Counts a session's depth of objects in objects while it lives.
class cls_Deeper {
 public:
  explicit cls_Deeper(int& depth) noexcept : depth_(depth) { ++depth_; }
  ~cls_Deeper() { --depth_; }
  cls_Deeper(cls_Deeper const&) = delete;
  cls_Deeper& operator=(cls_Deeper const&) = delete;

 private:
  int& depth_;
};

/// What one save knows: the tables of the classes met, and where each object that can be met again was written.
/// After an exception the session and its database hold half an object and are of no more use.
class TVO_API cls_WriteSession {
 public:
  explicit cls_WriteSession(cls_Database& database);
  ~cls_WriteSession();
  cls_WriteSession(cls_WriteSession const&) = delete;
  cls_WriteSession& operator=(cls_WriteSession const&) = delete;

  cls_Database& Database() noexcept { return database_; }
  cls_Table& TableOf(cls_AttributeTable const& attributes);
  /// As above by type identifier; a class without registered attributes is refused.
  cls_Table& TableOf(unsigned int typeId);

  /// Number of a text. Shared texts are known by their characters' place, which the model keeps while it is written.
  std::uint32_t StringNumber(cow_String const& text);
  /// Numbers of the names of an enumeration's rows, by row; filled by the enumeration's codec.
  std::vector<std::uint32_t>& EnumCache(int index) { return cls_At(enumCaches_, index); }

  /// Row of an object written before, or cls_NoRow. The same identity at another place in memory is another object that
  /// still has its origin's identity: it is written too, or its values would be lost.
  std::uint32_t FindWritten(std::uint64_t uid, void const* place) const;
  void NoteWritten(std::uint64_t uid, void const* place, std::uint32_t row);

  /// Depth of objects in objects, bounded as it is for reading, so that what is saved can be opened.
  int depth = 0;

 private:
  struct Written {
    std::uint64_t uid = 0;
    void const* place = nullptr;
    std::uint32_t row = cls_NoRow;
  };
  void Grow();
  std::size_t Slot(std::uint64_t uid) const noexcept;

  cls_Database& database_;
  std::vector<cls_Table*> tableByIndex_;
  std::vector<std::vector<std::uint32_t>> enumCaches_;
  struct CachedText {
    char const* place = nullptr;
    std::uint32_t number = 0;
  };
  std::vector<CachedText> texts_;
  std::vector<Written> written_;
  std::size_t writtenCount_ = 0;
};

/// Writes one level of one object: stands on a row of a table, once StartWrite has given it one.
class TVO_API cls_WriteVisitor {
 public:
  /// The visitor of the root object.
  explicit cls_WriteVisitor(cls_WriteSession& session) : session_(&session) {}
  /// A visitor for the base class's part of the row of `outer`.
  cls_WriteVisitor(cls_WriteVisitor const& outer, unsigned int baseTypeId);
  /// A visitor for the object embedded as the attribute `key` of the row of `outer`.
  cls_WriteVisitor(cls_WriteVisitor const& outer, cls_FieldHandle const& key);
  /// As above, by the attribute's first column.
  cls_WriteVisitor(cls_WriteVisitor const& outer, int column)
      : session_(outer.session_), outer_(&outer), column_(column), role_(Role::embedded) {}

  /// Takes a row for an object of that class. Zero if this identity has been written already: the caller then writes
  /// nothing, and the place that embeds the object refers to the row written before.
  unsigned int StartWrite(unsigned int typeId, cls_Uid const& uid) const;

  void Put(cls_FieldHandle const& key, bool value) const;
  void Put(cls_FieldHandle const& key, int value) const;
  void Put(cls_FieldHandle const& key, double value) const;
  void Put(cls_FieldHandle const& key, cow_String const& value) const;

  /// Writes all levels of an object by its table of attributes; an object met before is only referred to.
  void WriteObject(cls_Persistent const& object) const;

  // What the attributes use: cells by column of this row.
  cls_WriteSession& Session() const noexcept { return *session_; }
  void SetWord(int column, std::uint32_t word) const { Column(column).Set(row_, word); }
  void SetDouble(int column, double value) const { Column(column).Set(row_, value); }
  /// Embeds an object that has no other place, by the table of its class.
  void SetPart(int column, cls_Persistent const& object, cls_AttributeTable const& attributes) const;
  /// Embeds an object. `shareable` says that it can be met again by another way.
  void SetObject(int column, cls_Persistent const& object, bool shareable) const;
  /// Row of an object written on its own, as an element of a collection.
  std::uint32_t WriteElement(cls_Persistent const& object, bool shareable) const;

 private:
  friend class cls_AttributeTable;
  /// Stands on a row that it has already.
  cls_WriteVisitor(cls_WriteSession& session, cls_Table& table, std::uint32_t row)
      : session_(&session), table_(&table), row_(row) {}
  void WriteLevels(cls_Persistent const& object, cls_AttributeTable const& attributes) const;
  /// What the written object is to its surroundings, and so what refers to its row.
  enum class Role : std::uint8_t { root, base, embedded, element };

  cls_Column& Column(int column) const { return table_->columns[static_cast<std::size_t>(column)]; }
  cls_Column& Column(cls_FieldHandle const& key, cls_CellKind kind) const;
  void Link(unsigned int typeId, std::uint32_t row) const;

  cls_WriteSession* session_;
  cls_WriteVisitor const* outer_ = nullptr;
  int column_ = -1;  ///< column of the outer row that refers to this object
  Role role_ = Role::root;
  bool shareable_ = true;
  mutable cls_Table* table_ = nullptr;
  mutable std::uint32_t row_ = cls_NoRow;
};

/// What one load knows: the database, which rows more than one place refers to, and what became of them.
/// After an exception the session is of no more use.
class TVO_API cls_ReadSession {
 public:
  /// Checks all references of the database before anything is read. Damage is refused with the table and the row.
  explicit cls_ReadSession(cls_Database const& database);
  ~cls_ReadSession();
  cls_ReadSession(cls_ReadSession const&) = delete;
  cls_ReadSession& operator=(cls_ReadSession const&) = delete;

  cls_Database const& Database() const noexcept { return database_; }
  /// Stored column of each column of the class, -1 for one that the stored version lacks.
  std::vector<int> const& Columns(cls_AttributeTable const& attributes, cls_Table const& table) {
    TableState& state = StateOf(table);
    if (!state.resolved) {
      Resolve(attributes, table, state);
    }
    return state.columns;
  }
  std::vector<int>& EnumCache(int index) { return cls_At(enumCaches_, index); }
  /// The table of a class that rows refer to; the references have been checked.
  cls_Table const* TableOf(unsigned int classId) {
    KnownTable& known = knownTables_[classId % knownTables_.size()];
    if (known.classId != classId) {
      known = {classId, database_.FindTable(classId)};
    }
    return known.table;
  }

  struct Shared {
    bool reading = false;
    std::unique_ptr<cls_Persistent> object;
    /// One for each type of holder that refers to the row, with the address that stands for the type.
    std::vector<std::pair<void const*, std::shared_ptr<void>>> holders;
  };
  /// The record of a row that more than one place refers to, null for all others.
  Shared* FindShared(cls_Table const& table, std::uint32_t row) {
    TableState& state = StateOf(table);
    return state.references[row] < 2 ? nullptr : SharedOf(state, row);
  }

  /// Depth of objects in objects, bounded so that a damaged file cannot exhaust the stack.
  int depth = 0;
  static constexpr int maxDepth = 200;

 private:
  void CountReference(unsigned int classId, std::uint32_t row, std::string_view place, std::uint32_t fromRow) {
    if (classId != target_.classId) {
      SetTarget(classId);
    }
    if (row >= target_.rows) {
      RefuseReference(place, fromRow);
    }
    std::uint8_t& count = target_.references[row];
    count = count == 0 ? 1 : 2;
  }
  void SetTarget(unsigned int classId);
  [[noreturn]] static void RefuseReference(std::string_view place, std::uint32_t fromRow);
  void CheckColumn(cls_Table const& table, std::size_t column);
  void CheckTable(cls_Table const& table);
  void CheckCollection(cls_Collection const& collection, std::uint32_t number);

  struct TableState {
    std::vector<int> columns;
    bool resolved = false;
    std::vector<std::uint8_t> references;  ///< 0, 1, or 2 for more
    std::unordered_map<std::uint32_t, Shared> shared;
  };
  TableState& StateOf(cls_Table const& table) { return states_[table.index]; }
  static Shared* SharedOf(TableState& state, std::uint32_t row);
  static void Resolve(cls_AttributeTable const& attributes, cls_Table const& table, TableState& state);

  cls_Database const& database_;
  std::vector<TableState> states_;  ///< by the table's place
  /// The class that the last reference was to; most references come in rows of one class.
  struct Target {
    unsigned int classId = 0;
    std::uint32_t rows = 0;
    std::uint8_t* references = nullptr;
  };
  Target target_;
  /// Tables met of late, by class: objects of a few classes take turns.
  struct KnownTable {
    unsigned int classId = 0;
    cls_Table const* table = nullptr;
  };
  std::array<KnownTable, 64> knownTables_;
  std::vector<std::vector<int>> enumCaches_;
};

/// Reads one level of one object: stands on a row of a table.
class TVO_API cls_ReadVisitor {
 public:
  /// The visitor of the root object.
  explicit cls_ReadVisitor(cls_ReadSession& session);
  cls_ReadVisitor(cls_ReadSession& session, cls_Table const* table, std::uint32_t row)
      : session_(&session), table_(table), row_(row) {}
  /// A visitor for the object embedded as the attribute `key`; it has no row if none is stored.
  cls_ReadVisitor(cls_ReadVisitor const& outer, cls_FieldHandle const& key);

  bool HasRow() const noexcept { return table_ != nullptr; }
  unsigned int StoredTypeId() const noexcept { return table_->typeId; }
  /// The identity under which the object was stored.
  cls_Uid GetUid() const;

  /// A key that the stored version lacks leaves the value as it is.
  void Get(cls_FieldHandle const& key, bool& value) const;
  void Get(cls_FieldHandle const& key, int& value) const;
  void Get(cls_FieldHandle const& key, double& value) const;
  void Get(cls_FieldHandle const& key, cow_String& value) const;

  // What the attributes use: cells by column of the class.
  cls_ReadSession& Session() const noexcept { return *session_; }
  /// The stored cells of a column of the class, null if the stored version lacks it.
  cls_Column const* Cells(int column) const {
    int const stored = (*columns_)[static_cast<std::size_t>(column)];
    return stored < 0 ? nullptr : &table_->columns[static_cast<std::size_t>(stored)];
  }
  std::uint32_t Row() const noexcept { return row_; }
  cls_Table const& Table() const noexcept { return *table_; }
  void SetClass(cls_AttributeTable const& attributes) { columns_ = &session_->Columns(attributes, *table_); }
  bool HasBasePart() const { return Cells(0) != nullptr && Cells(0)->words[row_] != cls_NoRow; }
  /// Visitor of the base class's row.
  cls_ReadVisitor BasePart() const;
  /// Visitor of the object that a column refers to; its class must be `typeId` or derive from it. Without a row if none.
  cls_ReadVisitor Enter(int column, unsigned int typeId) const;
  cls_ReadVisitor EnterRow(unsigned int classId, std::uint32_t row, unsigned int typeId) const;
  /// The collection that a column refers to, or null.
  cls_Collection const* Collection(int column, cls_CollectionType kind) const;

  [[noreturn]] void Refuse(std::string_view why) const;

 private:
  cls_Column const* Field(cls_FieldHandle const& key) const;

  cls_ReadSession* session_;
  cls_Table const* table_ = nullptr;
  std::uint32_t row_ = cls_NoRow;
  std::vector<int> const* columns_ = nullptr;
};

/// Refuses stored data: nex_PrimException<cow_String, 2> with the place and the reason.
[[noreturn]] TVO_API void cls_RefuseStored(std::string_view place, std::uint32_t row, std::string_view why);
