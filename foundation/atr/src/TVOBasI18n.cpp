#include "TVOBasI18n.h"

#include <algorithm>
#include <climits>
#include <cwchar>
#include <string>

namespace {

TVOBasI18n::Translator translator = nullptr;

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

constexpr char32_t invalid = 0xFFFFFFFF;

/// Takes the next code point off the front; bytes that are not well-formed UTF-8 give `invalid`, one byte at a time.
char32_t TakeUTF8(std::string_view& text) {
  auto const byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  unsigned char const lead = byte(0);
  std::size_t const length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
  char32_t code = length <= 1 ? lead : lead & (0x7Fu >> length);
  bool wellFormed = length > 0 && length <= text.size();
  for (std::size_t i = 1; wellFormed && i < length; ++i) {
    wellFormed = (byte(i) & 0xC0) == 0x80;
    code = code << 6 | (byte(i) & 0x3F);
  }
  // Overlong forms, surrogates and what lies beyond the last code point.
  static constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  wellFormed = wellFormed && code >= least[length] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  text.remove_prefix(wellFormed ? length : 1);
  return wellFormed ? code : invalid;
}

void AppendUTF8(std::string& text, char32_t code) {
  auto const add = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (code < 0x80) return add(code);
  if (code < 0x800) {
    add(0xC0 | code >> 6);
  } else if (code < 0x10000) {
    add(0xE0 | code >> 12);
    add(0x80 | (code >> 6 & 0x3F));
  } else {
    add(0xF0 | code >> 18);
    add(0x80 | (code >> 12 & 0x3F));
    add(0x80 | (code >> 6 & 0x3F));
  }
  add(0x80 | (code & 0x3F));
}

}  // namespace

cow_String TVOBasI18n::ToUTF8(cow_String const& localeText) {
  std::string_view left = localeText.View();
  if (IsAscii(left)) return localeText;
  std::string result;
  std::mbstate_t state{};
  while (!left.empty()) {
    wchar_t wide = L'\0';
    std::size_t const used = std::mbrtowc(&wide, left.data(), left.size(), &state);
    if (used > left.size()) {  // an error, or a character cut at the end
      result += '?';
      left.remove_prefix(1);
      state = {};
    } else {
      AppendUTF8(result, static_cast<char32_t>(wide));
      left.remove_prefix(used);
    }
  }
  return cow_String(result);
}

cow_String TVOBasI18n::ToLocale(cow_String const& utf8Text) {
  std::string_view left = utf8Text.View();
  if (IsAscii(left)) return utf8Text;
  std::string result;
  std::mbstate_t state{};
  char bytes[MB_LEN_MAX];
  while (!left.empty()) {
    char32_t const code = TakeUTF8(left);
    std::mbstate_t const before = state;
    std::size_t length = code == invalid ? sizeof bytes + 1 : std::wcrtomb(bytes, static_cast<wchar_t>(code), &state);
    if (length > sizeof bytes) {  // the locale has no such character
      state = before;
      length = std::wcrtomb(bytes, L'?', &state);
    }
    result.append(bytes, length);
  }
  std::size_t const ending = std::wcrtomb(bytes, L'\0', &state);  // back to the initial shift state, and a zero byte
  return cow_String(result.append(bytes, ending - 1));
}

void TVOBasI18n::SetTranslator(Translator newTranslator) noexcept { translator = newTranslator; }

char const* TVOBasI18n::Translate(char const* text) {
  char const* const found = translator == nullptr || text == nullptr ? nullptr : translator(text);
  return found == nullptr ? text : found;
}
