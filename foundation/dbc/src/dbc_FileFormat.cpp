#include "dbc_FileFormat.h"

#include <algorithm>

#include "dbc_Bytes.h"
#include "dbc_FileHeader.h"

namespace {

// The first byte is no text, the line end is what a transfer as text would change.
constexpr std::array<std::uint8_t, 8> magic = {0x89, 'T', 'V', 'O', 'D', 'B', '\r', '\n'};

constexpr std::uint64_t factors[] = {0x9e3779b97f4a7c15u, 0xc2b2ae3d27d4eb4fu, 0xff51afd7ed558ccdu,
                                     0x165667b19e3779f9u};

/// Invertible in each of its arguments: what differs in one of them stays different.
std::uint64_t Mix(std::uint64_t sum, std::uint64_t word) {
  return std::rotl(sum ^ (word * factors[1]), 31) * factors[0];
}

char const* KindName(dbc_SectionKind kind) {
  switch (kind) {
    case dbc_SectionKind::Classes:
      return "classes";
    case dbc_SectionKind::Strings:
      return "strings";
    case dbc_SectionKind::Collections:
      return "collections";
    case dbc_SectionKind::Table:
      return "table";
    case dbc_SectionKind::Root:
      return "root";
  }
  return nullptr;
}

/// Checksum of a section: its kind and length take part.
std::uint64_t SectionChecksum(std::uint8_t const* head, std::span<std::uint8_t const> content) {
  return dbc_Checksum(content, dbc_Checksum({head, 16}, 0));
}

/// The section whose head stands at `offset`; its content lies within the file.
dbc_Section ReadHead(std::span<std::uint8_t const> file, std::string_view name, std::size_t offset,
                     std::size_t number) {
  std::string const numbered = std::to_string(number);
  dbc_ByteReader in(name, numbered, file.data(), offset, file.size() - offset);
  std::uint8_t const* const head = in.Take(dbc_SectionHeadSize);
  dbc_Section section;
  section.kind = static_cast<dbc_SectionKind>(dbc_LoadLittle<std::uint32_t>(head));
  char const* const kindName = KindName(section.kind);
  if (kindName == nullptr || dbc_LoadLittle<std::uint32_t>(head + 4) != 0) {
    in.Refuse("is of no known kind");
  }
  section.name = kindName;
  section.offset = offset + dbc_SectionHeadSize;
  std::uint64_t const length = dbc_LoadLittle<std::uint64_t>(head + 8);
  if (length > in.Left()) {
    in.Refuse("reaches past the end of the file");
  }
  section.length = static_cast<std::size_t>(length);
  return section;
}

}  // namespace

std::uint64_t dbc_Checksum(std::span<std::uint8_t const> bytes, std::uint64_t seed) {
  std::uint64_t lanes[4] = {factors[0], factors[1], factors[2], factors[3]};
  std::uint8_t const* at = bytes.data();
  std::size_t left = bytes.size();
  for (; left >= 32; left -= 32, at += 32) {
    for (std::size_t i = 0; i < 4; ++i) {
      lanes[i] = Mix(lanes[i], dbc_LoadLittle<std::uint64_t>(at + 8 * i));
    }
  }
  for (std::size_t i = 0; left > 0; ++i) {
    std::uint8_t word[8] = {};
    std::size_t const count = std::min(left, sizeof word);
    std::copy_n(at, count, word);
    lanes[i] = Mix(lanes[i], dbc_LoadLittle<std::uint64_t>(word));
    left -= count;
    at += count;
  }
  std::uint64_t sum = Mix(seed, bytes.size());
  for (std::uint64_t const lane : lanes) {
    sum = Mix(sum, lane ^ lane >> 29);
  }
  return sum ^ sum >> 32;
}

std::array<std::uint8_t, dbc_HeaderSize> dbc_HeaderBytes(dbc_FileHeader const& header) {
  std::array<std::uint8_t, dbc_HeaderSize> bytes{};
  std::copy(magic.begin(), magic.end(), bytes.begin());
  dbc_StoreLittle(&bytes[8], header.format);
  dbc_StoreLittle(&bytes[12], header.schemaRevision);
  dbc_StoreLittle(&bytes[16], header.fileLength);
  dbc_StoreLittle(&bytes[24], header.sections);
  dbc_StoreLittle(&bytes[32], dbc_Checksum({bytes.data(), 32}, 0));
  return bytes;
}

dbc_FileHeader dbc_ReadHeader(std::span<std::uint8_t const> start, std::uint64_t fileLength, std::string_view name) {
  auto const refuse = [&](std::size_t offset, std::string const& reason) {
    dbc_RefuseDamage(name, "header", offset, reason);
  };
  auto const stored = start.first(std::min(start.size(), magic.size()));
  if (!std::equal(magic.begin(), magic.end(), stored.begin(), stored.end())) {
    refuse(0, "the file is no database");
  }
  if (start.size() < dbc_HeaderSize) {
    refuse(start.size(), "the file was cut here");
  }
  if (dbc_Checksum(start.first(32), 0) != dbc_LoadLittle<std::uint64_t>(&start[32])) {
    refuse(32, "the checksum does not agree with the content");
  }
  dbc_FileHeader const header{dbc_LoadLittle<std::uint32_t>(&start[8]), dbc_LoadLittle<std::uint32_t>(&start[12]),
                              dbc_LoadLittle<std::uint64_t>(&start[16]), dbc_LoadLittle<std::uint32_t>(&start[24])};
  auto const refuseNewer = [&](std::size_t offset, char const* what, std::uint32_t found, std::uint32_t known) {
    refuse(offset, std::string("was written by a newer release: ") + what + " " + std::to_string(found) +
                       ", this release reads " + std::to_string(known));
  };
  if (header.format > dbc_FormatNumber) {
    refuseNewer(8, "format", header.format, dbc_FormatNumber);
  }
  if (header.schemaRevision > static_cast<std::uint32_t>(dbc_SchemaRevision)) {
    refuseNewer(12, "schema revision", header.schemaRevision, dbc_SchemaRevision);
  }
  if (header.fileLength != fileLength) {
    refuse(16, "the file has " + std::to_string(fileLength) + " bytes, not " + std::to_string(header.fileLength));
  }
  return header;
}

std::vector<dbc_Section> dbc_ListSections(std::span<std::uint8_t const> file, cow_String const& name) {
  std::size_t const headerSize = std::min(file.size(), dbc_HeaderSize);
  dbc_FileHeader const header = dbc_ReadHeader(file.first(headerSize), file.size(), name.View());
  std::vector<dbc_Section> sections;
  std::size_t offset = dbc_HeaderSize;
  while (offset < file.size()) {
    sections.push_back(ReadHead(file, name.View(), offset, sections.size() + 1));
    offset = sections.back().offset + sections.back().length;
  }
  if (sections.size() != header.sections) {
    dbc_RefuseDamage(name.View(), "header", 24, "the number of sections is another");
  }
  for (dbc_Section const& section : sections) {
    std::uint8_t const* const head = &file[section.offset - dbc_SectionHeadSize];
    auto const content = file.subspan(section.offset, section.length);
    if (SectionChecksum(head, content) != dbc_LoadLittle<std::uint64_t>(head + 16)) {
      dbc_RefuseDamage(name.View(), section.name, section.offset, "the checksum does not agree with the content");
    }
  }
  return sections;
}

std::vector<std::uint8_t> dbc_AssembleFile(int schemaRevision, std::vector<dbc_SectionContent> const& sections,
                                           std::uint32_t format) {
  std::size_t length = dbc_HeaderSize;
  for (dbc_SectionContent const& section : sections) {
    length += dbc_SectionHeadSize + section.bytes.size();
  }
  auto const header = dbc_HeaderBytes(
      {format, static_cast<std::uint32_t>(schemaRevision), length, static_cast<std::uint32_t>(sections.size())});
  std::vector<std::uint8_t> file(length);
  std::uint8_t* at = std::copy(header.begin(), header.end(), file.data());
  for (dbc_SectionContent const& section : sections) {
    std::uint8_t* const head = at;
    dbc_StoreLittle(head, static_cast<std::uint32_t>(section.kind));
    dbc_StoreLittle(head + 8, std::uint64_t{section.bytes.size()});
    dbc_StoreLittle(head + 16, SectionChecksum(head, section.bytes));
    at = std::copy(section.bytes.begin(), section.bytes.end(), head + dbc_SectionHeadSize);
  }
  return file;
}
