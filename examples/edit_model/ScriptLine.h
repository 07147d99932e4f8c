#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// A line that cannot be read; the message says what was expected.
class Unreadable : public std::runtime_error {
 public:
  explicit Unreadable(std::string const& expected) : std::runtime_error("expected " + expected) {}
};

/// A word `key=value` of a line.
struct Setting {
  std::string key;
  std::string value;
};

/// One line of an edit script: its words, and its settings in their order. Words are separated by blanks; what stands
/// in double quotes is taken as it is; `#` outside quotes begins a comment. Both lists are empty for an empty line.
struct ScriptLine {
  explicit ScriptLine(std::string_view text);

  std::vector<std::string> words;
  std::vector<Setting> settings;
};
