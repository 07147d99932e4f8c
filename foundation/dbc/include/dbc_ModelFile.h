#pragma once

#include <memory>
#include <span>
#include <vector>

#include "cls_Persistent.h"
#include "cls_Table.h"
#include "dbc_FileFormat.h"

// Databases in files. What is wrong with a file is refused with nex_PrimException<cow_String, 2>; refusals of damaged
// files read "FILE: section NAME at offset N: REASON". What is wrong with the program's own old classes shows when one
// of their files is opened, and comes out as it is raised: a renamed class that cannot get its table with
// nex_PrimException<atr_String, 1>, old classes that contradict each other with nex_PrimException<cow_String, 3>.

/// Writes a database to a file: a new file beside it, synced, then renamed over it, and the directory synced, so that
/// whoever reads finds the old or the new one whole. `schemaRevision` is the newest class version that occurs.
/// A file that exists keeps its permissions; a symbolic link is followed. Refuses with the file and the system's reason,
/// and then the old file is as it was.
TVO_API void dbc_SaveDatabase(cls_Database const& database, int schemaRevision, cow_String const& path);
/// Reads a file as tables, whatever classes it holds, and trusts nothing: lengths, indexes and references are checked,
/// and memory is taken in proportion to the bytes that are there. `schemaRevision` receives the file's, if not null.
TVO_API cls_Database dbc_OpenDatabase(cow_String const& path, int* schemaRevision = nullptr);

/// Saves an object with all that it holds.
TVO_API void dbc_SaveObject(cls_Persistent const& root, cow_String const& path);
/// Reads an object with all that it holds; the caller owns it. A file of an older revision is converted in memory
/// first; the file stays as it is until somebody saves. A class or attribute that neither this release nor its old
/// class versions know is refused.
TVO_API std::unique_ptr<cls_Persistent> dbc_OpenObject(cow_String const& path);
/// As above; an object that is not of class `typeId` or one derived from it is refused.
TVO_API std::unique_ptr<cls_Persistent> dbc_OpenObject(cow_String const& path, unsigned int typeId);
template <class T>
std::unique_ptr<T> dbc_Open(cow_String const& path) {
  return std::unique_ptr<T>(static_cast<T*>(dbc_OpenObject(path, T::TypeId()).release()));
}

// The same in memory. `name` stands for the file's name in messages.
TVO_API std::vector<std::uint8_t> dbc_EncodeDatabase(cls_Database const& database, int schemaRevision);
TVO_API cls_Database dbc_DecodeDatabase(std::span<std::uint8_t const> file, cow_String const& name,
                                        int* schemaRevision = nullptr);
TVO_API std::vector<std::uint8_t> dbc_EncodeObject(cls_Persistent const& root);
TVO_API std::unique_ptr<cls_Persistent> dbc_DecodeObject(std::span<std::uint8_t const> file, cow_String const& name);
