#pragma once

#include <bit>
#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "TVOExport.h"
#include "cls_Types.h"
#include "mem_Array.h"

/// Row number that means "none".
inline constexpr std::uint32_t cls_NoRow = 0xffffffffu;

/// Generated field names of a row.
inline constexpr char const* cls_BaseClassField = "##BaseClassOID";
inline constexpr char const* cls_ClassIdSuffix = "#ClassID";
inline constexpr char const* cls_OidSuffix = "#OID";

/// What the cells of a column mean; every kind but Double is a 32-bit word.
enum class cls_CellKind : std::uint8_t {
  Int,         ///< integer, counter or bool
  Double,
  String,      ///< index into the database's strings; enumerations too
  Row,         ///< row number in the table of the base class
  ClassId,     ///< class of the row in the next column
  RowOfClass,  ///< row number in the table that the column before names
  Collection,  ///< row number in the database's collections
};

/// One field of all rows of a table, contiguous.
class TVO_API cls_Column {
 public:
  cls_Column(cow_String fieldName, cls_CellKind cellKind, unsigned int rowsOf = 0)
      : name(std::move(fieldName)), kind(cellKind), target(rowsOf) {}

  /// What a cell holds that nobody wrote.
  std::uint32_t DefaultWord() const noexcept {
    return kind == cls_CellKind::Row || kind == cls_CellKind::RowOfClass || kind == cls_CellKind::Collection ? cls_NoRow
                                                                                                            : 0u;
  }
  void Set(std::uint32_t row, std::uint32_t word) { SetIn(words, row, word, DefaultWord()); }
  void Set(std::uint32_t row, double value) { SetIn(doubles, row, value, 0.0); }
  void Fill(std::uint32_t rows) {
    if (kind == cls_CellKind::Double) {
      doubles.resize(rows);
    } else {
      words.resize(rows, DefaultWord());
    }
  }

  cow_String name;
  cls_CellKind kind;
  unsigned int target;  ///< class that the referred rows derive from (Row, ClassId)
  mem_Array<std::uint32_t> words;
  mem_Array<double> doubles;

 private:
  /// A cell that is not reached yet and would get its default is left to Fill, which takes the memory of all such at once.
  template <class Cell>
  static void SetIn(mem_Array<Cell>& cells, std::uint32_t row, Cell value, Cell unset) {
    if (row < cells.size()) {
      cells[row] = value;
    } else if (!IsSameCell(value, unset)) {
      if (row > cells.size()) {
        cells.resize(row, unset);
      }
      cells.push_back(value);
    }
  }
  static bool IsSameCell(std::uint32_t a, std::uint32_t b) { return a == b; }
  /// By its bits: a negative zero is not the default.
  static bool IsSameCell(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }
};

/// The rows of one class: one row for each object and level of its hierarchy. A level's row names the row of its base.
///
/// Columns stand in the order of the declared attributes, behind a first one for the base's row if there is a base.
class TVO_API cls_Table {
 public:
  cls_Table(unsigned int id, cow_String className, int classVersion, unsigned int parent)
      : typeId(id), name(std::move(className)), version(classVersion), parentTypeId(parent) {}

  /// Adds the columns of an attribute; the index of the first.
  int AddColumns(cls_DeclaredAttribute const& attribute);
  /// Index of the column of that name, or -1.
  int FindColumn(std::string_view fieldName) const noexcept;

  std::uint32_t Rows() const noexcept { return static_cast<std::uint32_t>(uids.size()); }
  std::uint32_t NewRow(std::uint64_t uid) {
    uids.push_back(uid);
    return static_cast<std::uint32_t>(uids.size() - 1);
  }
  /// Gives cells that nobody wrote their default.
  void Complete();

  unsigned int typeId;
  std::size_t index = 0;  ///< place among the database's tables
  cow_String name;
  int version;
  unsigned int parentTypeId;  ///< 0 for none
  std::vector<cls_DeclaredAttribute> declared;
  std::vector<cls_Column> columns;
  /// Identity of the object whose outermost level the row is; 0 in rows of base levels.
  mem_Array<std::uint64_t> uids;
};

/// A list or map of an attribute: a stretch of the heap that its kind uses.
struct cls_Collection {
  std::uint64_t uid = 0;
  cls_CollectionType kind = cls_CollectionType::ObjectList;
  std::uint32_t first = 0;
  std::uint32_t count = 0;
};

/// Words of the heap that one element takes: an object is class and row, a map entry has its key before it.
/// Two-level lists hold row numbers of their inner lists. Doubles stand in a heap of their own.
constexpr std::uint32_t cls_ElementWords(cls_CollectionType kind) noexcept {
  switch (kind) {
    case cls_CollectionType::ObjectList:
    case cls_CollectionType::NameToId:
    case cls_CollectionType::NameToName:
      return 2;
    case cls_CollectionType::ObjectMap:
    case cls_CollectionType::ObjectMapById:
      return 3;
    default:
      return 1;
  }
}

/// A model as tables: one per class, collections and strings beside them. What the visitors write and read, what a file holds.
class TVO_API cls_Database {
 public:
  cls_Database() = default;
  cls_Database(cls_Database const&) = delete;
  cls_Database& operator=(cls_Database const&) = delete;
  cls_Database(cls_Database&&) = default;
  cls_Database& operator=(cls_Database&&) = default;

  /// The table of a class, or null.
  cls_Table* FindTable(unsigned int typeId) noexcept;
  cls_Table const* FindTable(unsigned int typeId) const noexcept;
  cls_Table& AddTable(unsigned int typeId, cow_String const& name, int version, unsigned int parentTypeId);

  /// Puts a table in the place of the one of the same class, which it gives back.
  std::unique_ptr<cls_Table> Replace(std::unique_ptr<cls_Table> table);
  /// Takes the table of a class out, or gives null.
  std::unique_ptr<cls_Table> Remove(unsigned int typeId);

  /// Number of a text; equal texts have one number. The empty text is number 0.
  std::uint32_t StringNumber(std::string_view text);
  cow_String const& String(std::uint32_t number) const { return strings[number]; }

  /// Completes all tables after the last write.
  void Complete();

  std::vector<std::unique_ptr<cls_Table>> tables;
  std::vector<cow_String> strings{cow_String()};
  mem_Array<cls_Collection> collections;
  mem_Array<std::uint32_t> words;
  mem_Array<double> doubles;
  /// The object that holds all others.
  unsigned int rootTypeId = 0;
  std::uint32_t rootRow = cls_NoRow;

 private:
  std::unordered_map<unsigned int, cls_Table*> byId_;
  std::unordered_map<std::string_view, std::uint32_t> numbers_;
};
