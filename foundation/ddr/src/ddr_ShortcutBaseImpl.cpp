#include "ddr_ShortcutBaseImpl.h"

#include <cstdio>
#include <string>

#include "nex_Exception.h"

cow_String ddr_ShortcutBaseImpl::DdbName(TVOBasStringMode mode) const {
  return mode == 0 ? Name() : TVOBasI18n::ToLocale(Name());
}

cow_String ddr_ShortcutBaseImpl::Joined(cow_String const& path, cow_String const& name) {
  return path.IsEmpty() ? name : path + "." + name;
}

cow_String ddr_ShortcutBaseImpl::Quoted(cow_String const& text) {
  std::string quoted = "'";
  for (char const letter : text.View()) {
    auto const code = static_cast<unsigned char>(letter);
    if (code < 0x20 || code == 0x7f) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\x%02x", code);
      quoted += escape;
      continue;
    }
    if (letter == '\'' || letter == '\\') quoted += '\\';
    quoted += letter;
  }
  return cow_String(quoted + "'");
}

void ddr_ShortcutBaseImpl::RefuseUnresolved() const { nex_CmdException<cow_String, 1>(Path()).Throw(__FILE__, __LINE__); }
