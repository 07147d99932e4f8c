#pragma once

#include <utility>
#include <vector>

#include "TVOBasI18n.h"
#include "cow_String.h"

/// Shared text that may be a translation: then it also carries the text it was translated from, in the same block.
class TVO_API atr_String : public atr_StringBase {
 public:
  atr_String() noexcept = default;
  atr_String(char const* text) : atr_StringBase(text == nullptr ? std::string_view() : std::string_view(text)) {}
  /// Shares the characters.
  explicit atr_String(atr_StringBase const& other) noexcept : atr_StringBase(other) {}
  /// A translation and the text it comes from.
  atr_String(cow_String const& text, cow_String const& raw) : atr_StringBase(text.View(), raw.View()) {}

  /// Whether the text differs from the one it was translated from.
  bool IsTranslated() const noexcept { return HasRaw(); }
  /// The text before translation, or the text itself if it was not translated; never null, lives as CStr() does.
  using atr_StringBase::RawCStr;

  /// Fills the place numbered `position` of this text, as atr_SubstituteFormat does it, with a value that is not
  /// translated. The places left keep their numbers; a text without that place stays as it is.
  atr_String& ReplaceNonTranslated(int position, cow_String const& value);

  /// The same text in the encoding of the locale, or in UTF-8; it keeps what it was translated from.
  atr_String UTF8ToLocale() const;
  atr_String LocaleToUTF8() const;
};

template <>
struct std::hash<atr_String> : std::hash<atr_StringBase> {};

/// A fixed text, never translated. `mode` tells how it is given; the result is in UTF-8.
TVO_API atr_String atr_raw(char const* text, TVOBasStringMode mode = 0);

/// A translatable text with places to fill: `%1$s` or `%2$d` by number, plain `%s`, `%d`, `%i`, `%u` counted from 1 in
/// their order, `%%` for a percent sign. Values are given by atr_SubstituteFormat.
class TVO_API atr_translate {
 public:
  /// `mode` tells how the text is given.
  explicit atr_translate(char const* text, TVOBasStringMode mode = 0);
  /// The text in the user's language with the values given so far, in the encoding that `mode` wants. It remembers the
  /// untranslated text with the same values. Places without a value stay, under their numbers; a text that was given no
  /// value at all is left to the letter.
  atr_String Result(TVOBasStringMode mode = 0) const;

 private:
  friend TVO_API void atr_SubstituteFormat(atr_translate&, int, atr_String const&, TVOBasStringMode);
  cow_String text_;
  std::vector<std::pair<int, atr_String>> values_;
};

/// Gives the place numbered `position`, from 1, its value; a later value for the same place replaces the earlier one.
/// `mode` tells how a text is given. A value is never searched for places.
TVO_API void atr_SubstituteFormat(atr_translate& format, int position, atr_String const& value, TVOBasStringMode mode = 0);
TVO_API void atr_SubstituteFormat(atr_translate& format, int position, cow_String const& value, TVOBasStringMode mode = 0);
TVO_API void atr_SubstituteFormat(atr_translate& format, int position, char const* value, TVOBasStringMode mode = 0);
TVO_API void atr_SubstituteFormat(atr_translate& format, int position, int value, TVOBasStringMode mode = 0);
TVO_API void atr_SubstituteFormat(atr_translate& format, int position, unsigned int value, TVOBasStringMode mode = 0);

/// A label as the user sees it: without the translators' key, which stands behind a backslash and an at sign.
TVO_API cow_String atr_DisplayText(atr_StringBase const& label);
