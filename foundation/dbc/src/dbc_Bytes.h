#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

// Files are little endian whatever the machine; compilers make one load or store of these loops.

template <class Int>
inline void dbc_StoreLittle(std::uint8_t* to, Int value) noexcept {
  for (std::size_t i = 0; i < sizeof value; ++i) {
    to[i] = static_cast<std::uint8_t>(value >> (8 * i));
  }
}
template <class Int>
inline Int dbc_LoadLittle(std::uint8_t const* from) noexcept {
  Int value = 0;
  for (std::size_t i = 0; i < sizeof value; ++i) {
    value |= static_cast<Int>(Int{from[i]} << (8 * i));
  }
  return value;
}

/// Bytes that a number takes as a varint: seven bits a byte, the lowest first, the top bit set in all but the last.
inline std::size_t dbc_VarintSize(std::uint64_t value) noexcept {
  return static_cast<std::size_t>(9 * std::bit_width(value | 1) + 64) >> 6;
}
inline std::uint8_t* dbc_StoreVarint(std::uint8_t* to, std::uint64_t value) noexcept {
  while (value >= 0x80) {
    *to++ = static_cast<std::uint8_t>(value | 0x80);
    value >>= 7;
  }
  *to++ = static_cast<std::uint8_t>(value);
  return to;
}

/// Appends to the content of a section.
class dbc_ByteWriter {
 public:
  void Byte(std::uint8_t value) { bytes.push_back(value); }
  void Varint(std::uint64_t value) { dbc_StoreVarint(Extend(dbc_VarintSize(value)), value); }
  void Text(std::string_view text) {
    Varint(text.size());
    bytes.insert(bytes.end(), text.begin(), text.end());
  }
  /// Room for that many bytes, to be filled by the caller.
  std::uint8_t* Extend(std::size_t count) {
    bytes.resize(bytes.size() + count);
    return bytes.data() + (bytes.size() - count);
  }

  std::vector<std::uint8_t> bytes;
};

/// Raises "FILE: section NAME at offset N: REASON".
[[noreturn]] void dbc_RefuseDamage(std::string_view file, std::string_view section, std::size_t offset,
                                   std::string_view reason);

/// Reads the content of a section and refuses to leave it.
class dbc_ByteReader {
 public:
  /// The names must outlive the reader.
  dbc_ByteReader(std::string_view fileName, std::string_view sectionName, std::uint8_t const* file, std::size_t offset,
                 std::size_t length)
      : fileName_(fileName), sectionName_(sectionName), file_(file), at_(file + offset), end_(at_ + length) {}

  std::size_t Left() const noexcept { return static_cast<std::size_t>(end_ - at_); }
  std::uint8_t Byte() { return *Take(1); }
  std::uint64_t Varint() {
    if (at_ != end_ && *at_ < 0x80) {
      return *at_++;
    }
    return LongVarint();
  }
  std::uint32_t Word() {
    std::uint64_t const value = Varint();
    if (value > std::numeric_limits<std::uint32_t>::max()) {
      Refuse("a number is out of range");
    }
    return static_cast<std::uint32_t>(value);
  }
  std::string_view Text() {
    std::size_t const length = Varint();
    return {reinterpret_cast<char const*>(Take(length)), length};
  }
  /// The next bytes, which are passed over.
  std::uint8_t const* Take(std::size_t count) {
    if (count > Left()) {
      Refuse("the section ends too early");
    }
    at_ += count;
    return at_ - count;
  }
  void ExpectEnd() const {
    if (at_ != end_) {
      Refuse("the section holds more than it should");
    }
  }
  [[noreturn]] void Refuse(std::string_view reason) const {
    dbc_RefuseDamage(fileName_, sectionName_, static_cast<std::size_t>(at_ - file_), reason);
  }

 private:
  std::uint64_t LongVarint();

  std::string_view fileName_;
  std::string_view sectionName_;
  std::uint8_t const* file_;
  std::uint8_t const* at_;
  std::uint8_t const* end_;
};
