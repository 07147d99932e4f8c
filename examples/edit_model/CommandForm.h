#pragma once

#include <string_view>

#include "ScriptLine.h"

/// What a line gives to its command.
struct Arguments {
  /// The words behind the command's.
  std::vector<std::string> words;
  /// The settings that the command names itself; null if the line left one out.
  std::string const* Find(std::string_view key) const;
  std::string const& operator[](std::string_view key) const { return *Find(key); }

  std::vector<Setting> named;
  /// All others, in their order: keys of the edited object.
  std::vector<Setting> free;
};

/// The form of a command, read from its usage as a person reads it: NAME is a word, `to=NEWNAME` a setting, what stands
/// in brackets may be left out, and `key=value ...` stands for any settings.
class CommandForm {
 public:
  CommandForm(std::string_view command, std::string_view usage);

  /// The arguments on a line; one that does not have the form cannot be read.
  Arguments Read(ScriptLine const& line) const;

 private:
  struct Key {
    std::string_view name;
    bool required;
  };

  [[noreturn]] void Refuse() const;

  std::string usage_;
  std::size_t requiredWords_ = 0;
  std::size_t allWords_ = 0;
  std::vector<Key> keys_;
  bool anySettings_ = false;
  bool needsSetting_ = false;
};
