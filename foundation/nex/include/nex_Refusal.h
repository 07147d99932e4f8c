#pragma once

#include <span>

#include "atr_String.h"
#include "nex_Catalogue.h"

/// How a module refuses: the texts of its catalogue by number, which numbers are refusals of a user's command and which
/// texts pass through translation. The arrays are static tables.
struct nex_Refusals {
  std::span<nex_CatalogueRow const> texts;
  std::span<int const> commands = {};
  std::span<int const> translated = {};
};

/// The text of an error number in UTF-8, translated if it is one of those; empty for a number outside the catalogue.
TVO_API atr_String nex_RefusalText(nex_Refusals const& refusals, int number);

/// Raises the text of an error number: nex_CmdException<cow_String, 1> for a refused command, nex_PrimException<atr_String,
/// 1> for all others, numbers outside the catalogue included. `file` must outlive the exception, as a literal does.
[[noreturn]] TVO_API void nex_Refuse(nex_Refusals const& refusals, int number, char const* file, int line);
