#include "TVOBasException.h"

TVOBasException::~TVOBasException() = default;

void TVOBasException::SetPosition(char const* file, int line) noexcept {
  file_ = file;
  line_ = line;
}
