#include <array>
#include <limits>

#include "dbc_Coding.h"
#include "dbc_ColumnCoding.h"

namespace {

constexpr std::size_t kindCount = std::size(dbc_CollectionKinds);

bool IsType(std::uint32_t code) {
  switch (static_cast<cls_AttributeType>(code)) {
    case cls_AttributeType::Int:
    case cls_AttributeType::Counter:
    case cls_AttributeType::Double:
    case cls_AttributeType::String:
    case cls_AttributeType::Bool:
    case cls_AttributeType::Enum:
    case cls_AttributeType::Object:
    case cls_AttributeType::Reference:
      return true;
  }
  return false;
}

/// Place of a kind among all kinds of collections, kindCount for a number that is none.
std::size_t KindPlace(std::uint32_t code) {
  std::size_t place = 0;
  while (place < kindCount && static_cast<std::uint32_t>(dbc_CollectionKinds[place]) != code) {
    ++place;
  }
  return place;
}

/// A text that will be there again as it stands; a zero byte would end it.
cow_String ReadName(dbc_ByteReader& in) {
  std::string_view const text = in.Text();
  if (text.find('\0') != std::string_view::npos || text.size() > std::numeric_limits<int>::max()) {
    in.Refuse("a text cannot be as it stands here");
  }
  return cow_String(text);
}

cls_DeclaredAttribute ReadAttribute(dbc_ByteReader& in) {
  cls_DeclaredAttribute attribute;
  attribute.field.ordinal = static_cast<int>(in.Word());
  attribute.field.name = ReadName(in);
  std::uint32_t const type = in.Word();
  attribute.typeId = in.Word();
  std::uint32_t const collection = in.Word();
  if (!IsType(type) || (collection != 0 && KindPlace(collection) == kindCount)) {
    in.Refuse("an attribute is of no known type");
  }
  attribute.type = static_cast<cls_AttributeType>(type);
  attribute.collection = static_cast<cls_CollectionType>(collection);
  return attribute;
}

void DecodeClasses(dbc_ByteReader& in, cls_Database& database) {
  for (std::uint32_t classes = in.Word(); classes > 0; --classes) {
    unsigned int const typeId = in.Word();
    cow_String const name = ReadName(in);
    auto const version = static_cast<int>(in.Word());
    unsigned int const parent = in.Word();
    if (typeId == 0 || parent == typeId || database.FindTable(typeId) != nullptr) {
      in.Refuse("a class has the identifier of another");
    }
    cls_Table& table = database.AddTable(typeId, name, version, parent);
    for (std::uint32_t attributes = in.Word(); attributes > 0; --attributes) {
      table.AddColumns(ReadAttribute(in));
    }
  }
}

void DecodeStrings(dbc_ByteReader& in, cls_Database& database) {
  std::uint32_t const count = in.Word();
  for (std::uint32_t number = 1; number <= count; ++number) {
    if (database.StringNumber(ReadName(in).View()) != number) {
      in.Refuse("a text stands here twice");
    }
  }
}

/// Takes the elements of the collections back from the columns of their kinds into the heaps.
class ElementScatter {
 public:
  ElementScatter(dbc_ByteReader& in, std::array<std::uint64_t, kindCount> const& totals) {
    for (std::size_t place = 0; place < kindCount; ++place) {
      auto const total = static_cast<std::size_t>(totals[place]);
      if (dbc_CollectionKinds[place] == cls_CollectionType::DoubleList) {
        elements_[place].doubles = dbc_DecodeColumn<double>(in, total);
        continue;
      }
      for (std::uint32_t w = 0; w < cls_ElementWords(dbc_CollectionKinds[place]); ++w) {
        elements_[place].words[w] = dbc_DecodeColumn<std::uint32_t>(in, total);
      }
    }
  }

  void Append(cls_Collection& collection, std::size_t place, cls_Database& database) {
    dbc_Elements& from = elements_[place];
    std::size_t& next = next_[place];
    std::size_t const end = next + collection.count;
    if (collection.kind == cls_CollectionType::DoubleList) {
      collection.first = static_cast<std::uint32_t>(database.doubles.size());
      database.doubles.insert(database.doubles.end(), from.doubles.begin() + static_cast<std::ptrdiff_t>(next),
                              from.doubles.begin() + static_cast<std::ptrdiff_t>(end));
      next = end;
      return;
    }
    collection.first = static_cast<std::uint32_t>(database.words.size());
    for (std::uint32_t const width = cls_ElementWords(collection.kind); next < end; ++next) {
      for (std::uint32_t w = 0; w < width; ++w) {
        database.words.push_back(from.words[w][next]);
      }
    }
  }

 private:
  dbc_Elements elements_[kindCount];
  std::size_t next_[kindCount] = {};
};

void DecodeCollections(dbc_ByteReader& in, cls_Database& database) {
  std::uint32_t const count = in.Word();
  auto const kinds = dbc_DecodeColumn<std::uint32_t>(in, count);
  auto const counts = dbc_DecodeColumn<std::uint32_t>(in, count);
  auto const uids = dbc_DecodeColumn<std::uint64_t>(in, count);
  std::array<std::uint64_t, kindCount> totals{};
  std::uint64_t words = 0;
  for (std::uint32_t i = 0; i < count; ++i) {
    std::size_t const place = KindPlace(kinds[i]);
    if (place == kindCount || counts[i] > static_cast<std::uint32_t>(std::numeric_limits<int>::max())) {
      in.Refuse("a collection is of no known kind or size");
    }
    totals[place] += counts[i];
    words += std::uint64_t{counts[i]} * cls_ElementWords(dbc_CollectionKinds[place]);
  }
  if (words > std::numeric_limits<std::uint32_t>::max()) {
    in.Refuse("the collections have too many elements");
  }
  ElementScatter elements(in, totals);
  // Not before the columns are read: until then the numbers are only what the file says.
  database.words.reserve(static_cast<std::size_t>(words));
  database.collections.resize(count);
  for (std::uint32_t i = 0; i < count; ++i) {
    std::size_t const place = KindPlace(kinds[i]);
    cls_Collection& collection = database.collections[i];
    collection.uid = uids[i];
    collection.kind = dbc_CollectionKinds[place];
    collection.count = counts[i];
    elements.Append(collection, place, database);
  }
}

void DecodeTable(dbc_ByteReader& in, cls_Table& table) {
  if (in.Word() != table.typeId) {
    in.Refuse("the table is that of another class");
  }
  std::uint32_t const rows = in.Word();
  if (rows == cls_NoRow) {
    in.Refuse("there are too many rows");
  }
  table.uids = dbc_DecodeColumn<std::uint64_t>(in, rows);
  for (cls_Column& column : table.columns) {
    if (in.Byte() != static_cast<std::uint8_t>(column.kind)) {
      in.Refuse("the columns are not those of the declared attributes");
    }
    if (column.kind == cls_CellKind::Double) {
      column.doubles = dbc_DecodeColumn<double>(in, rows);
    } else {
      column.words = dbc_DecodeColumn<std::uint32_t>(in, rows);
    }
  }
}

void DecodeRoot(dbc_ByteReader& in, cls_Database& database) {
  database.rootTypeId = in.Word();
  database.rootRow = in.Word();
}

/// Goes through the sections, which stand in a fixed order.
class Decoder {
 public:
  Decoder(std::span<std::uint8_t const> file, cow_String const& name)
      : file_(file), name_(name), sections_(dbc_ListSections(file, name)) {}

  dbc_DecodedFile Run() && {
    dbc_DecodedFile decoded;
    cls_Database& database = decoded.database;
    Next(dbc_SectionKind::Classes, [&](dbc_ByteReader& in) { DecodeClasses(in, database); });
    Next(dbc_SectionKind::Strings, [&](dbc_ByteReader& in) { DecodeStrings(in, database); });
    Next(dbc_SectionKind::Collections, [&](dbc_ByteReader& in) { DecodeCollections(in, database); });
    for (auto const& table : database.tables) {
      if (next_ < sections_.size()) {
        sections_[next_].name += " ";
        sections_[next_].name += table->name.View();
      }
      Next(dbc_SectionKind::Table, [&](dbc_ByteReader& in) { DecodeTable(in, *table); });
    }
    Next(dbc_SectionKind::Root, [&](dbc_ByteReader& in) { DecodeRoot(in, database); });
    if (next_ != sections_.size()) {
      dbc_RefuseDamage(name_.View(), sections_[next_].name, sections_[next_].offset, "the section has no place here");
    }
    decoded.sections = std::move(sections_);
    return decoded;
  }

 private:
  template <class Decode>
  void Next(dbc_SectionKind kind, Decode decode) {
    if (next_ == sections_.size()) {
      dbc_RefuseDamage(name_.View(), "header", 24, "sections are missing");
    }
    dbc_Section const& section = sections_[next_++];
    dbc_ByteReader in(name_.View(), section.name, file_.data(), section.offset, section.length);
    if (section.kind != kind) {
      in.Refuse("the section has no place here");
    }
    decode(in);
    in.ExpectEnd();
  }

  std::span<std::uint8_t const> file_;
  cow_String const& name_;
  std::vector<dbc_Section> sections_;
  std::size_t next_ = 0;
};

}  // namespace

dbc_DecodedFile dbc_DecodeSections(std::span<std::uint8_t const> file, cow_String const& name) {
  dbc_DecodedFile decoded = Decoder(file, name).Run();
  decoded.schemaRevision = static_cast<int>(dbc_LoadLittle<std::uint32_t>(&file[12]));
  return decoded;
}
