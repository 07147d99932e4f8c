#pragma once

#include <string>

#include "atr_StringBase.h"

/// Shared text with copy on write: two words, cheap to hold by value in containers. Bytes are UTF-8 unless told
/// otherwise.
class TVO_API cow_String : public atr_StringBase {
 public:
  cow_String() noexcept = default;
  /// A null pointer gives the empty text.
  cow_String(char const* text) : atr_StringBase(text == nullptr ? std::string_view() : std::string_view(text)) {}
  cow_String(char const* text, std::size_t length) : atr_StringBase(std::string_view(text, length)) {}
  explicit cow_String(std::string_view text) : atr_StringBase(text) {}
  cow_String(std::string const& text) : atr_StringBase(std::string_view(text)) {}
  /// Shares the characters.
  cow_String(atr_StringBase const& other) noexcept : atr_StringBase(other) {}
  cow_String(atr_StringBase&& other) noexcept : atr_StringBase(std::move(other)) {}

  /// Other sharers keep the old text. Linear in the length of the result.
  cow_String& operator+=(atr_StringBase const& tail) { return Append(tail.View()); }
  cow_String& operator+=(char const* tail) { return Append(tail); }

  friend cow_String operator+(atr_StringBase const& a, atr_StringBase const& b) { return Joined(a.View(), b.View()); }
  friend cow_String operator+(atr_StringBase const& a, char const* b) { return Joined(a.View(), b); }
  friend cow_String operator+(char const* a, atr_StringBase const& b) { return Joined(a, b.View()); }

 private:
  cow_String& Append(std::string_view tail);
};

template <>
struct std::hash<cow_String> : std::hash<atr_StringBase> {};
