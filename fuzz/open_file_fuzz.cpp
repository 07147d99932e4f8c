// Arbitrary bytes as a database. A file is refused or gives a model that can be written, read back equal and discarded.

#include <cstdio>
#include <cstdlib>

#include "TVOOdbAttrEO.h"
#include "dbc_ModelFile.h"
#include "nex_Exception.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  static int depth = 0;
  TVOOdbAttrEO_initialize(depth);
  return 0;
}

namespace {

constexpr int revisions[] = {dbc_SchemaRevision, 203, 510, 831, 858, 1033, 1389, 2001};

/// The input with right lengths and checksums, so that what stands behind them is reached.
std::vector<std::uint8_t> Resealed(std::span<std::uint8_t const> sections, int schemaRevision) {
  std::vector<dbc_SectionContent> contents;
  constexpr dbc_SectionKind kinds[] = {dbc_SectionKind::Classes, dbc_SectionKind::Strings, dbc_SectionKind::Collections,
                                       dbc_SectionKind::Table, dbc_SectionKind::Root};
  while (sections.size() >= 3) {
    std::size_t const wanted = sections[1] | std::size_t{sections[2]} << 8;
    std::size_t const length = std::min(wanted, sections.size() - 3);
    auto const content = sections.subspan(3, length);
    contents.push_back({kinds[sections[0] % std::size(kinds)], {content.begin(), content.end()}});
    sections = sections.subspan(3 + length);
  }
  return dbc_AssembleFile(schemaRevision, contents);
}

}  // namespace

// The lowest bit of the first byte tells whether the rest is a file or the contents of its sections, the others of which
// revision.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size == 0) return 0;
  std::span<std::uint8_t const> const rest(data + 1, size - 1);
  std::vector<std::uint8_t> resealed;
  if (data[0] % 2 == 1) resealed = Resealed(rest, revisions[data[0] / 2 % std::size(revisions)]);
  std::unique_ptr<cls_Persistent> model;
  try {
    model = dbc_DecodeObject(data[0] % 2 == 1 ? std::span<std::uint8_t const>(resealed) : rest, "input");
  } catch (std::exception const&) {
    return 0;
  }
  auto const again = dbc_DecodeObject(dbc_EncodeObject(*model), "again");
  if (!cls_EqualValues(*again, *model)) {
    std::fputs("a model that was read is not equal after writing and reading\n", stderr);
    std::abort();
  }
  return 0;
}
