#pragma once

#include <map>
#include <string>

#include "cow_List.h"
#include "cow_Map.h"
#include "dbc_OldClassVersion.h"
#include "dbc_Row.h"
#include "omi_Singleton.h"

// Conversion of a database of an earlier schema revision, in memory and on the database's own tables.

/// Brings one row to the next shape. Attributes of the same name and form are in the new row already. The last argument
/// is the row's number; the result is not looked at.
using dbc_RowFunction = void* (*)(dbc_Row const& oldRow, dbc_Row& newRow, int row);
/// Runs once on the whole table after its rows.
using dbc_FinalizeFunction = void* (*)(dbc_Table const& oldTable, dbc_Table& newTable);

/// One link of a class's chain: from an old version to the shape of the revision that it is bound to.
class dbc_ClassConverter {
 public:
  dbc_ClassConverter(unsigned int typeId, int oldVersion) : typeId_(typeId), oldVersion_(oldVersion) {}

  /// Runs for each row, in the order of the rows; null for none.
  void BindConversionFunction(dbc_RowFunction function) noexcept { row_ = function; }
  /// Runs once, behind all rows; null for none.
  void BindFinalizeFunction(dbc_FinalizeFunction function) noexcept { finalize_ = function; }

  /// The class and the version that the link starts from.
  unsigned int TypeId() const noexcept { return typeId_; }
  int OldVersion() const noexcept { return oldVersion_; }
  /// What is bound, or null.
  dbc_RowFunction ConversionFunction() const noexcept { return row_; }
  dbc_FinalizeFunction FinalizeFunction() const noexcept { return finalize_; }

 private:
  unsigned int typeId_;
  int oldVersion_;
  dbc_RowFunction row_ = nullptr;
  dbc_FinalizeFunction finalize_ = nullptr;
};

/// All that changes at one schema revision.
class TVO_API dbc_Converter {
 public:
  /// Declares that stored rows of the class at `oldVersion` get their next shape at this revision. The class goes by
  /// its identifier; the name tells readers which it is.
  dbc_ClassConverter& Upgrade(cow_String const& className, unsigned int const& typeId, int oldVersion);
  /// All links that lead to this revision, in the order in which they were declared.
  std::vector<std::unique_ptr<dbc_ClassConverter>> const& Links() const noexcept { return links_; }

 private:
  std::vector<std::unique_ptr<dbc_ClassConverter>> links_;
};

/// The tables as they were stored. They stay as they are while the conversion runs; only a table that needs no
/// conversion is the same on both sides.
class TVO_API dbc_InputDatabase {
 public:
  /// Whether the database was stored with a table of the class.
  bool HasInputTable(unsigned int const& typeId) const { return tables_.contains(typeId); }
  /// The stored table, or a null handle.
  dbc_Table GetInputTable(unsigned int const& typeId) const;

 private:
  friend class dbc_DatabaseConverter;
  explicit dbc_InputDatabase(cls_Database& database);

  cls_Database& database_;
  std::map<unsigned int, cls_Table*> tables_;
};

/// The tables as they are converted so far.
class TVO_API dbc_OutputDatabase {
 public:
  /// The table of the class; an empty one in the shape of the revision in work if the database has none yet. A null
  /// handle for a class that this release does not know.
  dbc_Table GetOutputTable(unsigned int const& typeId);
  /// The table of the class brought up to `version`, a number of its chain. A null handle if the database has none or
  /// the chain does not stop there. The class goes by its identifier; the name tells readers which it is.
  dbc_Table GetTempTable(unsigned int const& typeId, cow_String const& className, int version);

 private:
  friend class dbc_DatabaseConverter;
  explicit dbc_OutputDatabase(class dbc_DatabaseConverter& converter) : converter_(converter) {}

  dbc_DatabaseConverter& converter_;
};

/// Walks the chains of all stored classes up to the present versions, in ascending order of the revisions.
class TVO_API dbc_DatabaseConverter {
 public:
  /// Stands over a database, which Run() changes, and nothing else.
  /// @pre for Run(): FirstUnknown() is empty and the references have been checked (cls_ReadSession)
  explicit dbc_DatabaseConverter(cls_Database& database);
  ~dbc_DatabaseConverter();
  dbc_DatabaseConverter(dbc_DatabaseConverter const&) = delete;
  dbc_DatabaseConverter& operator=(dbc_DatabaseConverter const&) = delete;

  /// Why the database cannot be read in this release: the first class or attribute that neither the present classes nor
  /// the old ones know. Empty if there is none.
  static std::string FirstUnknown(cls_Database const& database);
  /// Whether a table is not in the present version.
  static bool IsOld(cls_Database const& database);

  /// Converts all tables and the references to classes that have another name since; references to dropped rows go.
  /// While it runs it is the holder's present converter. What it refuses leaves the database half converted.
  void Run();

  /// The converter of that revision; a new one if nothing leads there yet.
  dbc_Converter& GetConverter(int version) { return converters_[version]; }
  /// The two sides, and the database that both are of.
  dbc_InputDatabase& Input() noexcept { return input_; }
  dbc_OutputDatabase& Output() noexcept { return output_; }
  cls_Database& Database() noexcept { return database_; }
  /// The classes of the stored database and those of this release.
  cls_ClassRegistrar& InputSchema() noexcept { return inputSchema_; }
  cls_ClassRegistrar& OutputSchema() noexcept { return cls_ClassRegistrar::Present(); }
  /// Identifiers of the classes whose tables are dropped.
  cow_List<unsigned int>& DeletedClasses() noexcept { return deleted_; }
  /// New names by the old ones.
  cow_Map<cow_String, cow_String>& RenamedClasses() noexcept { return renamed_; }

  /// Copies the rows of a renamed class into the table of the class `newTypeId`, which is made in the oldest shape of
  /// that class, and notes that references follow. Nothing is copied, and the handle is null, if the database has no
  /// table of the old class, or that has no rows and the new one has; rows in both are refused as damage. A table below
  /// `oldVersion` is brought up to that version first. Refused with
  /// nex_PrimException<atr_String, 1> at `file`: "rename_NAME failed: outputTable can't be NULL", and the same with
  /// inputTable, where the one or the other cannot be had.
  dbc_Table RenameTable(cow_String const& oldName, unsigned int oldTypeId, int oldVersion, unsigned int newTypeId,
                        char const* file);

 private:
  friend class dbc_OutputDatabase;

  cls_ClassMetadata const* ShapeAt(unsigned int typeId, int version) const;
  void Collect();
  void RenameTables();
  void WalkChains();
  /// Applies the links of a class that lead no further than `version`.
  void BringUp(unsigned int typeId, int version);
  void Apply(dbc_ClassConverter const& link, int version);
  void DropDeleted();
  void FollowReferences();

  cls_Database& database_;
  dbc_InputDatabase input_;
  dbc_OutputDatabase output_;
  cls_ClassRegistrar inputSchema_;
  std::map<int, dbc_Converter> converters_;
  cow_List<unsigned int> deleted_;
  cow_Map<cow_String, cow_String> renamed_;
  std::map<unsigned int, unsigned int> newTypeIds_;  ///< 0 for a class whose rows are gone
  std::vector<std::unique_ptr<cls_Table>> superseded_;
  int revision_ = 0;
};

/// Where row functions find the conversion that runs.
class TVO_API dbc_DatabaseConverterHolder : public omi_Singleton<dbc_DatabaseConverterHolder> {
 public:
  /// The present converter. @pre a conversion runs
  dbc_DatabaseConverter& GetDatabaseConverter() const { return *present_; }
  /// Whether a conversion runs.
  bool HasDatabaseConverter() const noexcept { return present_ != nullptr; }
  /// Sets the present converter and gives the one before.
  dbc_DatabaseConverter* SetDatabaseConverter(dbc_DatabaseConverter* converter) noexcept {
    return std::exchange(present_, converter);
  }

 private:
  dbc_DatabaseConverter* present_ = nullptr;
};
