#pragma once

#include <exception>

#include "TVOBasI18n.h"

/// Base of all that the library raises: a message and the position in the source that refused.
class TVO_API TVOBasException : public std::exception {
 public:
  explicit TVOBasException(cow_String const& utf8Message) noexcept : text_(utf8Message) {}
  ~TVOBasException() override;

  /// The message in UTF-8.
  char const* what() const noexcept override { return text_.CStr(); }
  /// Where it was raised: a path in the source tree, and a line from 1. "" and 0 until it is raised by Throw.
  char const* File() const noexcept { return file_; }
  int Line() const noexcept { return line_; }

  /// Raises a copy of this object, as its full type, with this position. `file` must outlive the exception, as a literal
  /// does.
  [[noreturn]] virtual void Throw(char const* file, int line) = 0;

 protected:
  TVOBasException(TVOBasException const&) noexcept = default;
  TVOBasException& operator=(TVOBasException const&) noexcept = default;
  void SetPosition(char const* file, int line) noexcept;

 private:
  cow_String text_;
  char const* file_ = "";
  int line_ = 0;
};
