#pragma once

#include <cstdint>
#include <span>
#include <string>

/// Raises "PATH: WHAT: REASON" with the reason of the system's last error.
[[noreturn]] void dbc_RefuseSystem(std::string const& path, char const* what);

/// Replaces a file by new content. Whoever opens the path, whenever the process or the machine dies, finds the old
/// content or the new one whole: the new one gets the name only once it is synced.
void dbc_ReplaceFile(std::string const& path, std::span<std::uint8_t const> content);
