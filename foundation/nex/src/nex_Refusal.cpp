#include "nex_Refusal.h"

#include <algorithm>

#include "nex_Exception.h"

namespace {

bool IsListed(std::span<int const> numbers, int number) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

}  // namespace

atr_String nex_RefusalText(nex_Refusals const& refusals, int number) {
  bool const known = number >= 0 && static_cast<std::size_t>(number) < refusals.texts.size();
  char const* const text = known ? refusals.texts[static_cast<std::size_t>(number)].text : "";
  return IsListed(refusals.translated, number) ? atr_translate(text).Result() : atr_raw(text);
}

void nex_Refuse(nex_Refusals const& refusals, int number, char const* file, int line) {
  atr_String const text = nex_RefusalText(refusals, number);
  if (IsListed(refusals.commands, number)) nex_CmdException<cow_String, 1>(text).Throw(file, line);
  nex_PrimException<atr_String, 1>(text).Throw(file, line);
}
