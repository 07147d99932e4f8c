#include "CommandForm.h"

#include <algorithm>

std::string const* Arguments::Find(std::string_view key) const {
  auto const found =
      std::find_if(named.begin(), named.end(), [&](Setting const& setting) { return setting.key == key; });
  return found == named.end() ? nullptr : &found->value;
}

CommandForm::CommandForm(std::string_view command, std::string_view usage) : usage_(command) {
  if (!usage.empty()) usage_.append(" ").append(usage);
  while (!usage.empty()) {
    std::string_view part = usage.substr(0, usage.find(' '));
    usage.remove_prefix(std::min(part.size() + 1, usage.size()));
    bool const required = part.front() != '[';
    if (!required) part.remove_prefix(1);
    std::size_t const equals = part.find('=');
    if (part.starts_with("...")) continue;
    if (part == "key=value") {
      anySettings_ = true;
      needsSetting_ = required;
    } else if (equals != std::string_view::npos) {
      keys_.push_back({part.substr(0, equals), required});
    } else {
      ++allWords_;
      requiredWords_ += required ? 1 : 0;
    }
  }
}

Arguments CommandForm::Read(ScriptLine const& line) const {
  Arguments arguments;
  arguments.words.assign(line.words.begin() + 1, line.words.end());
  if (arguments.words.size() < requiredWords_ || arguments.words.size() > allWords_) Refuse();
  for (Setting const& setting : line.settings) {
    bool const named = std::any_of(keys_.begin(), keys_.end(), [&](Key const& key) { return key.name == setting.key; });
    if (named ? arguments.Find(setting.key) != nullptr : !anySettings_) Refuse();
    (named ? arguments.named : arguments.free).push_back(setting);
  }
  for (Key const& key : keys_) {
    if (key.required && arguments.Find(key.name) == nullptr) Refuse();
  }
  if (needsSetting_ && arguments.free.empty()) Refuse();
  return arguments;
}

void CommandForm::Refuse() const { throw Unreadable(usage_); }
