#include "atr_String.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace {

/// A place to fill, or a doubled percent sign, at the front of a form.
struct Place {
  std::size_t length = 0;  ///< bytes it takes; 0 if there is none here
  int number = 0;          ///< as written; 0 for a plain place
  char kind = 0;           ///< conversion letter, or '%'
};

Place PlaceAt(std::string_view form) {
  Place place;
  std::size_t at = 1;
  char const* const end = form.data() + form.size();
  auto const [after, error] = std::from_chars(form.data() + at, end, place.number);
  if (error == std::errc() && after != end && *after == '$' && place.number > 0) {
    at = static_cast<std::size_t>(after - form.data()) + 1;
  } else {
    place.number = 0;
  }
  if (at >= form.size()) return place;
  bool const escaped = form[at] == '%' && at == 1;
  if (!escaped && std::string_view("sdiu").find(form[at]) == std::string_view::npos) return place;
  place.kind = form[at];
  place.length = at + 1;
  return place;
}

/// Calls `literal(view)` and `place(Place)` in the order of the text; plain places come with the number they count as.
template <class Literal, class OnPlace>
void Walk(std::string_view form, Literal literal, OnPlace onPlace) {
  int plain = 0;
  while (!form.empty()) {
    std::size_t const percent = std::min(form.find('%'), form.size());
    literal(form.substr(0, percent));
    form.remove_prefix(percent);
    if (form.empty()) return;
    Place place = PlaceAt(form);
    if (place.length == 0) {
      place.length = 1;
      literal(form.substr(0, 1));
    } else {
      if (place.kind != '%' && place.number == 0) place.number = ++plain;
      onPlace(place);
    }
    form.remove_prefix(place.length);
  }
}

void AppendDoubled(std::string& text, std::string_view value) {
  for (char const c : value) text.append(c == '%' ? 2 : 1, c);
}

/// Fills the places for which `valueOf(number)` is not null. While others are left the result is still a form: they stand
/// there by number, and percent signs doubled.
template <class ValueOf>
std::string Fill(std::string_view form, ValueOf valueOf) {
  bool open = false;
  Walk(form, [](auto) {}, [&](Place const& place) { open = open || (place.kind != '%' && !valueOf(place.number)); });
  std::string result;
  Walk(form, [&](std::string_view literal) { result += literal; },
       [&](Place const& place) {
         char const* const value = place.kind == '%' ? "%" : valueOf(place.number);
         if (value == nullptr) {
           result += '%' + std::to_string(place.number) + '$' + place.kind;
         } else if (open) {
           AppendDoubled(result, value);
         } else {
           result += value;
         }
       });
  return result;
}

cow_String InUTF8(char const* text, TVOBasStringMode mode) { return mode == 0 ? text : TVOBasI18n::ToUTF8(text); }

}  // namespace

atr_String& atr_String::ReplaceNonTranslated(int position, cow_String const& value) {
  auto const valueOf = [&](int number) { return number == position ? value.CStr() : nullptr; };
  bool present = false;
  Walk(View(), [](auto) {}, [&](Place const& place) { present = present || place.number == position; });
  if (!present) return *this;
  std::string const raw = HasRaw() ? Fill(RawCStr(), valueOf) : std::string();
  return *this = atr_String(Fill(View(), valueOf), raw);
}

atr_String atr_String::UTF8ToLocale() const {
  cow_String const converted = TVOBasI18n::ToLocale(*this);
  return converted == *this ? *this : atr_String(converted, RawCStr());
}

atr_String atr_String::LocaleToUTF8() const {
  cow_String const converted = TVOBasI18n::ToUTF8(*this);
  return converted == *this ? *this : atr_String(converted, RawCStr());
}

atr_String atr_raw(char const* text, TVOBasStringMode mode) { return atr_String(InUTF8(text, mode)); }

atr_translate::atr_translate(char const* text, TVOBasStringMode mode) : text_(InUTF8(text, mode)) {}

atr_String atr_translate::Result(TVOBasStringMode mode) const {
  cow_String const translated = TVOBasI18n::Translate(text_.CStr());
  auto const valueIn = [this](bool raw) {
    return [this, raw](int number) -> char const* {
      auto const found = std::find_if(values_.begin(), values_.end(), [&](auto& value) { return value.first == number; });
      return found == values_.end() ? nullptr : raw ? found->second.RawCStr() : found->second.CStr();
    };
  };
  atr_String const result =
      values_.empty() ? atr_String(translated, text_)
                      : atr_String(Fill(translated.View(), valueIn(false)), Fill(text_.View(), valueIn(true)));
  return mode == 0 ? result : result.UTF8ToLocale();
}

void atr_SubstituteFormat(atr_translate& format, int position, atr_String const& value, TVOBasStringMode mode) {
  atr_String const utf8 = mode == 0 ? value : value.LocaleToUTF8();
  for (auto& [number, given] : format.values_) {
    if (number == position) {
      given = utf8;
      return;
    }
  }
  format.values_.emplace_back(position, utf8);
}

void atr_SubstituteFormat(atr_translate& format, int position, cow_String const& value, TVOBasStringMode mode) {
  atr_SubstituteFormat(format, position, atr_String(value), mode);
}

void atr_SubstituteFormat(atr_translate& format, int position, char const* value, TVOBasStringMode mode) {
  atr_SubstituteFormat(format, position, atr_String(value), mode);
}

void atr_SubstituteFormat(atr_translate& format, int position, int value, TVOBasStringMode mode) {
  atr_SubstituteFormat(format, position, atr_String(std::to_string(value).c_str()), mode);
}

void atr_SubstituteFormat(atr_translate& format, int position, unsigned int value, TVOBasStringMode mode) {
  atr_SubstituteFormat(format, position, atr_String(std::to_string(value).c_str()), mode);
}

cow_String atr_DisplayText(atr_StringBase const& label) {
  int const marker = label.Find("\\@");
  return marker < 0 ? cow_String(label) : cow_String(label.CStr(), static_cast<std::size_t>(marker));
}
