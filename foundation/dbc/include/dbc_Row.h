#pragma once

#include <span>
#include <vector>

#include "cls_Registrar.h"
#include "cls_Table.h"

// Rows as row functions see them while an older database is converted. They are the database's own cells.

/// Names a field of a row and keeps the column where it was last found.
struct rfm_FieldHandle {
  explicit constexpr rfm_FieldHandle(char const* fieldName, int lastColumn = -1)
      : name(fieldName), column(lastColumn) {}

  char const* name;
  mutable int column;
};

class dbc_Row;

/// A table in the shape of one schema revision. A handle: copies stand for the same table, a null one for none.
class TVO_API dbc_Table {
 public:
  dbc_Table() = default;
  /// `shape` declares the attributes that rows may have; null for those that are there already.
  dbc_Table(cls_Database& database, cls_Table& cells, cls_ClassMetadata const* shape = nullptr)
      : database_(&database), cells_(&cells), shape_(shape) {}

  bool IsNull() const noexcept { return cells_ == nullptr; }

  // @pre of all that follows: !IsNull()

  /// Number of rows; the class, and the version of the shape that they have now.
  std::uint32_t Rows() const noexcept { return cells_->Rows(); }
  unsigned int TypeId() const noexcept { return cells_->typeId; }
  int Version() const noexcept { return cells_->version; }
  /// Whether the rows have the field; one that the shape declares and nobody has set is not there.
  bool HasField(rfm_FieldHandle const& field) const { return Find(field) != nullptr; }
  /// A row of the table. @pre row < Rows()
  dbc_Row Row(std::uint32_t row) const;
  /// One more row, all of whose cells have their default. `ofObject` gives it an identity; the part of a base has none.
  dbc_Row NewRow(bool ofObject);

  /// The database of the table, and the table itself.
  cls_Database& Database() const noexcept { return *database_; }
  cls_Table& Cells() const noexcept { return *cells_; }
  /// The column of that name, or null.
  cls_Column* Find(rfm_FieldHandle const& field) const;
  /// As Find; a column that an attribute of the shape declares is added. Others are refused with the field's name.
  cls_Column& Have(rfm_FieldHandle const& field) const;

 private:
  cls_Database* database_ = nullptr;
  cls_Table* cells_ = nullptr;
  cls_ClassMetadata const* shape_ = nullptr;
};

/// One row. A row that is read must have the field, of that kind, or the read is refused: ask HasField() where an old
/// database may lack it. Setting a field that no row has yet gives it to all rows, the others with the default.
class TVO_API dbc_Row {
 public:
  dbc_Row(dbc_Table const& table, std::uint32_t row) : table_(table), row_(row) {}

  std::uint32_t Number() const noexcept { return row_; }
  dbc_Table const& Table() const noexcept { return table_; }

  bool HasField(rfm_FieldHandle const& field) const { return table_.HasField(field); }
  /// Integers and what is stored as one: classes, row numbers and numbers of collections, -1 for none.
  int GetInt(rfm_FieldHandle const& field) const;
  double GetDouble(rfm_FieldHandle const& field) const;
  /// Texts and the names of enumerations' values.
  cow_String GetString(rfm_FieldHandle const& field) const;
  bool GetBool(rfm_FieldHandle const& field) const { return GetInt(field) != 0; }

  void SetInt(rfm_FieldHandle const& field, int value);
  void SetDouble(rfm_FieldHandle const& field, double value);
  void SetString(rfm_FieldHandle const& field, cow_String const& value);
  void SetBool(rfm_FieldHandle const& field, bool value) { SetInt(field, value ? 1 : 0); }

 private:
  enum class Kind { word, number, text };
  cls_Column const& Stored(rfm_FieldHandle const& field, Kind kind) const;
  cls_Column& Place(rfm_FieldHandle const& field, Kind kind);
  [[noreturn]] void Refuse(rfm_FieldHandle const& field) const;

  dbc_Table table_;
  std::uint32_t row_;
};

/// The object that an entry of a map refers to.
struct dbc_Target {
  unsigned int classId = 0;
  std::uint32_t row = cls_NoRow;
};

/// The entries of a generic map of objects ("Key", "ClassID", "Target#Handle"), in the order in which they are stored.
class TVO_API dbc_ObjectMap {
 public:
  /// The map that the field of the row refers to; an empty one if it refers to none or the row lacks it. Refuses a
  /// collection that is no map of objects.
  dbc_ObjectMap(dbc_Row const& row, rfm_FieldHandle const& field);

  std::uint32_t Size() const noexcept { return count_; }
  /// The name's number among the database's strings, or the number that is the key. @pre entry < Size()
  std::uint32_t Key(std::uint32_t entry) const { return Word(entry, 0); }
  dbc_Target Target(std::uint32_t entry) const { return {Word(entry, 1), Word(entry, 2)}; }
  void SetTarget(std::uint32_t entry, dbc_Target target);

 private:
  std::uint32_t& Word(std::uint32_t entry, std::uint32_t place) const {
    return database_->words[first_ + std::size_t{3} * entry + place];
  }

  cls_Database* database_;
  std::size_t first_ = 0;
  std::uint32_t count_ = 0;
};
