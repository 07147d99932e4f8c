#include <algorithm>

#include "cls_Visitors.h"
#include "dbc_Coding.h"
#include "dbc_ColumnCoding.h"

namespace {

std::vector<std::uint8_t> EncodeClasses(cls_Database const& database) {
  dbc_ByteWriter out;
  out.Varint(database.tables.size());
  for (auto const& table : database.tables) {
    out.Varint(table->typeId);
    out.Text(table->name.View());
    out.Varint(static_cast<std::uint32_t>(table->version));
    out.Varint(table->parentTypeId);
    out.Varint(table->declared.size());
    for (cls_DeclaredAttribute const& attribute : table->declared) {
      out.Varint(static_cast<std::uint32_t>(attribute.field.ordinal));
      out.Text(attribute.field.name.View());
      out.Varint(static_cast<std::uint32_t>(attribute.type));
      out.Varint(attribute.typeId);
      out.Varint(static_cast<std::uint32_t>(attribute.collection));
    }
  }
  return std::move(out.bytes);
}

// The empty text is number 0 in every database and not written.
std::vector<std::uint8_t> EncodeStrings(cls_Database const& database) {
  dbc_ByteWriter out;
  out.Varint(database.strings.size() - 1);
  for (std::size_t i = 1; i < database.strings.size(); ++i) {
    out.Text(database.strings[i].View());
  }
  return std::move(out.bytes);
}

void CheckStretch(cls_Database const& database, std::size_t number) {
  cls_Collection const& collection = database.collections[number];
  std::size_t const heap =
      collection.kind == cls_CollectionType::DoubleList ? database.doubles.size() : database.words.size();
  std::uint64_t const length = std::uint64_t{cls_ElementWords(collection.kind)} * collection.count;
  if (collection.first + length > heap) {
    cls_RefuseStored("collections", static_cast<std::uint32_t>(number), "reaches past its elements");
  }
}

dbc_Elements GatherElements(cls_Database const& database, cls_CollectionType kind) {
  dbc_Elements elements;
  std::uint32_t const width = cls_ElementWords(kind);
  for (cls_Collection const& collection : database.collections) {
    if (collection.kind != kind) {
      continue;
    }
    if (kind == cls_CollectionType::DoubleList) {
      auto const first = database.doubles.begin() + collection.first;
      elements.doubles.insert(elements.doubles.end(), first, first + collection.count);
      continue;
    }
    std::uint32_t const* at = database.words.data() + collection.first;
    for (std::uint32_t i = 0; i < collection.count; ++i) {
      for (std::uint32_t w = 0; w < width; ++w) {
        elements.words[w].push_back(*at++);
      }
    }
  }
  return elements;
}

std::vector<std::uint8_t> EncodeCollections(cls_Database const& database) {
  mem_Array<std::uint32_t> kinds;
  mem_Array<std::uint32_t> counts;
  mem_Array<std::uint64_t> uids;
  for (std::size_t i = 0; i < database.collections.size(); ++i) {
    CheckStretch(database, i);
    cls_Collection const& collection = database.collections[i];
    kinds.push_back(static_cast<std::uint32_t>(collection.kind));
    counts.push_back(collection.count);
    uids.push_back(collection.uid);
  }
  dbc_ByteWriter out;
  out.Varint(kinds.size());
  dbc_EncodeColumn(kinds, out);
  dbc_EncodeColumn(counts, out);
  dbc_EncodeColumn(uids, out);
  for (cls_CollectionType const kind : dbc_CollectionKinds) {
    dbc_Elements const elements = GatherElements(database, kind);
    if (kind == cls_CollectionType::DoubleList) {
      dbc_EncodeColumn(elements.doubles, out);
    } else {
      for (std::uint32_t w = 0; w < cls_ElementWords(kind); ++w) {
        dbc_EncodeColumn(elements.words[w], out);
      }
    }
  }
  return std::move(out.bytes);
}

/// A file gives the columns by the declared attributes alone, so the table must have these and no others.
void CheckLayout(cls_Table const& table) {
  cls_Table layout(table.typeId, table.name, table.version, table.parentTypeId);
  if (table.parentTypeId != 0) {
    layout.columns.emplace_back(cow_String(cls_BaseClassField), cls_CellKind::Row, table.parentTypeId);
  }
  for (cls_DeclaredAttribute const& attribute : table.declared) {
    layout.AddColumns(attribute);
  }
  bool const same = std::equal(table.columns.begin(), table.columns.end(), layout.columns.begin(), layout.columns.end(),
                               [](cls_Column const& a, cls_Column const& b) {
                                 return a.name == b.name && a.kind == b.kind && a.target == b.target;
                               });
  if (!same) {
    cls_RefuseStored(table.name.View(), cls_NoRow, "the columns are not those of the declared attributes");
  }
  for (cls_Column const& column : table.columns) {
    if ((column.kind == cls_CellKind::Double ? column.doubles.size() : column.words.size()) != table.uids.size()) {
      cls_RefuseStored(table.name.View(), cls_NoRow, "a column has not one cell a row");
    }
  }
  if (table.uids.size() >= cls_NoRow) {
    cls_RefuseStored(table.name.View(), cls_NoRow, "there are too many rows");
  }
}

std::vector<std::uint8_t> EncodeTable(cls_Table const& table) {
  CheckLayout(table);
  dbc_ByteWriter out;
  out.Varint(table.typeId);
  out.Varint(table.uids.size());
  dbc_EncodeColumn(table.uids, out);
  for (cls_Column const& column : table.columns) {
    out.Byte(static_cast<std::uint8_t>(column.kind));
    if (column.kind == cls_CellKind::Double) {
      dbc_EncodeColumn(column.doubles, out);
    } else {
      dbc_EncodeColumn(column.words, out);
    }
  }
  return std::move(out.bytes);
}

std::vector<std::uint8_t> EncodeRoot(cls_Database const& database) {
  dbc_ByteWriter out;
  out.Varint(database.rootTypeId);
  out.Varint(database.rootRow);
  return std::move(out.bytes);
}

}  // namespace

std::vector<dbc_SectionContent> dbc_EncodeSections(cls_Database const& database) {
  std::vector<dbc_SectionContent> sections;
  sections.push_back({dbc_SectionKind::Classes, EncodeClasses(database)});
  sections.push_back({dbc_SectionKind::Strings, EncodeStrings(database)});
  sections.push_back({dbc_SectionKind::Collections, EncodeCollections(database)});
  for (auto const& table : database.tables) {
    sections.push_back({dbc_SectionKind::Table, EncodeTable(*table)});
  }
  sections.push_back({dbc_SectionKind::Root, EncodeRoot(database)});
  return sections;
}
