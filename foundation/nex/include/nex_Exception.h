#pragma once

#include "TVOBasException.h"
#include "atr_String.h"

/// Any fault below the user's command, whatever its message type and class of error.
class TVO_API nex_PrimExceptionBase : public TVOBasException {
 public:
  using TVOBasException::TVOBasException;
  ~nex_PrimExceptionBase() override;
};

/// Any refused command, whatever its message type and class of error.
class TVO_API nex_CmdExceptionBase : public TVOBasException {
 public:
  using TVOBasException::TVOBasException;
  ~nex_CmdExceptionBase() override;
};

/// What every exception template adds to its base: the message in its own type, and raising as its own type.
template <class Self, class Base, class S>
class TVO_API nex_ExceptionOf : public Base {
 public:
  /// `mode` tells how the message is given; what() is in UTF-8 in any case.
  explicit nex_ExceptionOf(S const& message, TVOBasStringMode mode = 0)
      : Base(mode == 0 ? cow_String(message) : TVOBasI18n::ToUTF8(message)), message_(message) {}

  /// The message as it was given.
  S const& Message() const noexcept { return message_; }
  [[noreturn]] void Throw(char const* file, int line) final {
    this->SetPosition(file, line);
    throw static_cast<Self const&>(*this);
  }

 private:
  S message_;
};

/// A fault below the user's command. `S` is cow_String or atr_String; `n`, the class of error, can be caught separately.
template <class S, int n>
class TVO_API nex_PrimException final : public nex_ExceptionOf<nex_PrimException<S, n>, nex_PrimExceptionBase, S> {
 public:
  using nex_ExceptionOf<nex_PrimException, nex_PrimExceptionBase, S>::nex_ExceptionOf;
};

/// A refused command; parameters as for nex_PrimException.
template <class S, int n>
class TVO_API nex_CmdException final : public nex_ExceptionOf<nex_CmdException<S, n>, nex_CmdExceptionBase, S> {
 public:
  using nex_ExceptionOf<nex_CmdException, nex_CmdExceptionBase, S>::nex_ExceptionOf;
};

/// Refuses with the text of a condition that does not hold: raises nex_PrimException<cow_String, 3> with exactly this
/// text.
[[noreturn]] TVO_API void nex_AssertText(char const* expressionText, char const* file, int line);

extern template class nex_CmdException<cow_String, 1>;
extern template class nex_CmdException<cow_String, 9>;
extern template class nex_CmdException<atr_String, 2>;
extern template class nex_PrimException<cow_String, 3>;
extern template class nex_PrimException<atr_String, 1>;
