#pragma once

#include <sys/types.h>

#include <cstddef>

#include "TVOExport.h"

/// The system calls by which a file is saved, with the meaning that POSIX gives them. A test replaces them to make any
/// of them fail.
struct dbc_SystemCalls {
  int (*open)(char const* path, int flags, mode_t mode);
  ssize_t (*write)(int file, void const* bytes, std::size_t count);
  int (*fsync)(int file);
  int (*close)(int file);
  int (*rename)(char const* from, char const* to);
  int (*unlink)(char const* path);
};

/// Replaces the calls for the whole process; returns those used until now.
TVO_API dbc_SystemCalls dbc_SetSystemCalls(dbc_SystemCalls const& calls);
