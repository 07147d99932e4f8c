#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// Bytes of the header, which keeps this layout in all formats, and of what stands before the content of a section.
inline constexpr std::size_t dbc_HeaderSize = 40;
inline constexpr std::size_t dbc_SectionHeadSize = 24;

struct dbc_FileHeader {
  std::uint32_t format = 0;
  std::uint32_t schemaRevision = 0;
  std::uint64_t fileLength = 0;
  std::uint32_t sections = 0;
};

/// 64 bits over the bytes. Any change within one word of eight bytes is sure to change the sum.
std::uint64_t dbc_Checksum(std::span<std::uint8_t const> bytes, std::uint64_t seed);

std::array<std::uint8_t, dbc_HeaderSize> dbc_HeaderBytes(dbc_FileHeader const& header);
/// The header of a file of that length, from its first bytes (all of them, if it is shorter than a header). A file of
/// another kind, a cut one and one from a newer release are refused.
dbc_FileHeader dbc_ReadHeader(std::span<std::uint8_t const> start, std::uint64_t fileLength, std::string_view name);
