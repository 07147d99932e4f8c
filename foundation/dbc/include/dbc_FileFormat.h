#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "TVOExport.h"
#include "cow_String.h"

// The form of a database file: a header and sections, each with its length and checksum. docs/file_format.md tells it
// byte by byte.

/// Number of the format that this release writes, and the highest that it reads.
inline constexpr std::uint32_t dbc_FormatNumber = 1;
/// The newest class version that this release knows: the highest schema revision that it reads.
inline constexpr int dbc_SchemaRevision = 2613;

/// What a section holds. The numbers stand in files; the sections stand in this order, with one Table for each class.
enum class dbc_SectionKind : std::uint32_t { Classes = 1, Strings = 2, Collections = 3, Table = 4, Root = 5 };

/// One section of an encoded file.
struct dbc_Section {
  dbc_SectionKind kind = dbc_SectionKind::Classes;
  std::size_t offset = 0;  ///< of the content, in bytes from the start of the file
  std::size_t length = 0;  ///< of the content
  std::string name;        ///< as messages tell it
};

/// Content of a section that is still to be given its place.
struct dbc_SectionContent {
  dbc_SectionKind kind = dbc_SectionKind::Classes;
  std::vector<std::uint8_t> bytes;
};

/// The sections of an encoded file in their order. Header, lengths and checksums are checked, contents are not looked
/// into. `name` is the file's name for messages. Damage is refused: nex_PrimException<cow_String, 2>.
TVO_API std::vector<dbc_Section> dbc_ListSections(std::span<std::uint8_t const> file, cow_String const& name);
/// An encoded file made of these contents, with header and checksums.
TVO_API std::vector<std::uint8_t> dbc_AssembleFile(int schemaRevision, std::vector<dbc_SectionContent> const& sections,
                                                   std::uint32_t format = dbc_FormatNumber);
