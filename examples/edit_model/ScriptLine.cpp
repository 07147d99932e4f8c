#include "ScriptLine.h"

namespace {

constexpr std::string_view blanks = " \t\r";

/// Takes one word off the front of `text`. The first `=` outside quotes makes it a setting.
void TakeWord(std::string_view& text, ScriptLine& line) {
  Setting setting;
  std::string* part = &setting.key;
  bool quoted = false;
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    char const c = text[at];
    if (c == '"') {
      quoted = !quoted;
    } else if (!quoted && (c == '#' || blanks.find(c) != std::string_view::npos)) {
      break;
    } else if (!quoted && c == '=' && part == &setting.key) {
      part = &setting.value;
    } else {
      *part += c;
    }
  }
  if (quoted) throw Unreadable("a double quote at the end of the value");
  if (part == &setting.key) {
    line.words.push_back(setting.key);
  } else if (setting.key.empty()) {
    throw Unreadable("a key before '='");
  } else {
    line.settings.push_back(setting);
  }
  text.remove_prefix(at);
}

}  // namespace

ScriptLine::ScriptLine(std::string_view text) {
  for (;;) {
    std::size_t const word = text.find_first_not_of(blanks);
    if (word == std::string_view::npos || text[word] == '#') return;
    text.remove_prefix(word);
    TakeWord(text, *this);
  }
}
