#pragma once

#include <compare>
#include <cstddef>
#include <cstring>
#include <iosfwd>
#include <string_view>
#include <utility>

#include "TVOExport.h"

/// Shared, read-only text: what cow_String and atr_String have in common.
///
/// Two words; a copy shares the characters and costs one plain increment. A text ends at its first zero byte, and the
/// empty text holds nothing at all and reads as "". Comparison is by bytes, as strcmp does it.
class TVO_API atr_StringBase {
 public:
  atr_StringBase() noexcept = default;
  atr_StringBase(atr_StringBase const& other) noexcept : text_(other.text_), counter_(other.counter_) {
    if (counter_ != nullptr) ++*counter_;
  }
  atr_StringBase(atr_StringBase&& other) noexcept
      : text_(std::exchange(other.text_, nullptr)), counter_(std::exchange(other.counter_, nullptr)) {}
  atr_StringBase& operator=(atr_StringBase const& other) noexcept {
    atr_StringBase(other).Swap(*this);
    return *this;
  }
  atr_StringBase& operator=(atr_StringBase&& other) noexcept {
    atr_StringBase(std::move(other)).Swap(*this);
    return *this;
  }
  ~atr_StringBase() {
    if (counter_ != nullptr && --*counter_ == 0) Free();
  }

  /// The characters, ended by a zero byte; never null. They live until the last sharer changes or ends.
  char const* CStr() const noexcept { return text_ == nullptr ? "" : text_; }
  /// Number of bytes; constant time.
  int Length() const noexcept { return counter_ == nullptr ? 0 : BlockOf(counter_)->length; }
  bool IsEmpty() const noexcept { return text_ == nullptr; }
  /// The text as a view, which lives as long as CStr().
  std::string_view View() const noexcept { return {CStr(), static_cast<std::size_t>(Length())}; }
  /// Byte index of the first occurrence of `what` at or after `start`, or -1.
  int Find(char const* what, int start = 0) const noexcept;

  friend bool operator==(atr_StringBase const& a, atr_StringBase const& b) noexcept {
    return a.text_ == b.text_ ||
           (a.Length() == b.Length() && std::memcmp(a.CStr(), b.CStr(), static_cast<std::size_t>(a.Length())) == 0);
  }
  friend bool operator==(atr_StringBase const& a, char const* b) noexcept {
    return b == nullptr ? a.IsEmpty() : std::strcmp(a.CStr(), b) == 0;
  }
  friend std::strong_ordering operator<=>(atr_StringBase const& a, atr_StringBase const& b) noexcept {
    return a.text_ == b.text_ ? std::strong_ordering::equal : std::strcmp(a.CStr(), b.CStr()) <=> 0;
  }
  friend std::strong_ordering operator<=>(atr_StringBase const& a, char const* b) noexcept {
    return std::strcmp(a.CStr(), b == nullptr ? "" : b) <=> 0;
  }
  friend TVO_API std::ostream& operator<<(std::ostream& out, atr_StringBase const& text);

 protected:
  /// Copies `text` up to its first zero byte. Throws std::length_error beyond the largest int.
  explicit atr_StringBase(std::string_view text) : atr_StringBase(text, {}) {}
  /// The same with the text that it is a translation of; an empty or equal `raw` is not kept.
  atr_StringBase(std::string_view text, std::string_view raw);
  /// Both parts in one block, for joining without a text between.
  static atr_StringBase Joined(std::string_view head, std::string_view tail);

  bool HasRaw() const noexcept { return counter_ != nullptr && BlockOf(counter_)->rawLength > 0; }
  /// The untranslated text, which stands in the same block behind the translated one.
  char const* RawCStr() const noexcept { return HasRaw() ? text_ + Length() + 1 : CStr(); }

 private:
  /// Stands before the characters in one allocation; counter_ points at its first field.
  struct Block {
    int count;
    int length;
    int rawLength;
  };
  static Block* BlockOf(int* counter) noexcept { return reinterpret_cast<Block*>(counter); }
  static std::size_t SizeOf(int length, int rawLength) noexcept;
  char* Allocate(std::size_t length, std::size_t rawLength);
  void Free() noexcept;
  void Swap(atr_StringBase& other) noexcept {
    std::swap(text_, other.text_);
    std::swap(counter_, other.counter_);
  }

  char const* text_ = nullptr;
  int* counter_ = nullptr;
};

template <>
struct std::hash<atr_StringBase> {
  std::size_t operator()(atr_StringBase const& text) const noexcept {
    return std::hash<std::string_view>()(text.View());
  }
};
