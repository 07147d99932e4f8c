#pragma once

#include "TVOExport.h"

#include <stdexcept>

/// Raised by a map that was asked for a key it does not have.
class TVO_API cow_KeyError : public std::out_of_range
{
 public:
  cow_KeyError();
  ~cow_KeyError() override;

  /// Throws a cow_KeyError.
  [[noreturn]] static void Raise();
};
