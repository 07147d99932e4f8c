#pragma once

#include "cow_String.h"

/// Encoding of a text that is given or wanted: 0 is the text as stored, in UTF-8; any other value is the encoding of the
/// user's locale.
using TVOBasStringMode = int;

/// Conversion between stored and shown text, and the catalogue of translations.
class TVO_API TVOBasI18n {
 public:
  /// Answers the text in the user's language, or null or its argument if it has none; the answer lives as long as the
  /// program.
  using Translator = char const* (*)(char const*);

  /// From the encoding of the C library's current locale; bytes that are no character there become '?'. Plain ASCII is
  /// shared, not copied.
  static cow_String ToUTF8(cow_String const& localeText);
  /// To the encoding of the C library's current locale; characters that it cannot hold become '?'. Plain ASCII is shared.
  static cow_String ToLocale(cow_String const& utf8Text);

  /// Sets the catalogue that translatable texts are looked up in, for the whole process; null restores the identity.
  static void SetTranslator(Translator translator) noexcept;
  /// The text in the user's language, in UTF-8; never null unless `text` is.
  static char const* Translate(char const* text);
};
