#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "cls_Table.h"
#include "dbc_FileFormat.h"

/// A file as tables, before its references are checked.
struct dbc_DecodedFile {
  cls_Database database;
  int schemaRevision = 0;
  std::vector<dbc_Section> sections;
};

/// Contents of the sections. Tables that have not one cell a row in the columns of their attributes are refused.
std::vector<dbc_SectionContent> dbc_EncodeSections(cls_Database const& database);
dbc_DecodedFile dbc_DecodeSections(std::span<std::uint8_t const> file, cow_String const& name);

/// All kinds of collections, in the order in which a file holds their elements.
inline constexpr cls_CollectionType dbc_CollectionKinds[] = {
    cls_CollectionType::ObjectList,     cls_CollectionType::ObjectMap,  cls_CollectionType::ObjectMapById,
    cls_CollectionType::DoubleList,     cls_CollectionType::FloatList,  cls_CollectionType::IntList,
    cls_CollectionType::StringList,     cls_CollectionType::NameToId,   cls_CollectionType::NameToName,
    cls_CollectionType::DoubleListList, cls_CollectionType::IntListList};

/// What a kind's elements have for each of their words: one column.
struct dbc_Elements {
  mem_Array<std::uint32_t> words[3];
  mem_Array<double> doubles;
};
