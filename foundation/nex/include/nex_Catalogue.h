#pragma once

#include <cstddef>

/// One message of a module's error catalogue. The number is the row's place in the catalogue.
struct nex_CatalogueRow {
  int number;
  char const* text;
};

/// Whether the numbers of a catalogue run from 0 without a gap, so that a number is also an index.
template <std::size_t N>
consteval bool nex_NumbersRise(nex_CatalogueRow const (&rows)[N]) {
  for (std::size_t i = 0; i < N; ++i) {
    if (rows[i].number != static_cast<int>(i)) return false;
  }
  return true;
}

/// The text of an error number; empty for a number outside the catalogue, never null. Constant time.
template <std::size_t N>
constexpr char const* nex_CatalogueText(nex_CatalogueRow const (&rows)[N], int number) {
  return number >= 0 && static_cast<std::size_t>(number) < N ? rows[number].text : "";
}

/// Whether a number stands in one of a catalogue's lists of numbers, such as its refused commands.
template <std::size_t N>
constexpr bool nex_IsListed(int const (&numbers)[N], int number) {
  for (int const listed : numbers) {
    if (listed == number) return true;
  }
  return false;
}
