#pragma once

#include "TVOExport.h"

/// A complex value in the form in which it was given.
class TVO_API omi_complex {
 public:
  enum Code {
    RECTANGULAR = 0,    ///< the doubles are the real and imaginary parts
    POLAR_DEGREES = 1,  ///< magnitude, and phase in degrees
    POLAR_RADIANS = 2,  ///< magnitude, and phase in radians
  };

  constexpr omi_complex() noexcept = default;
  constexpr omi_complex(double real, double imag) noexcept : first_(real), second_(imag) {}
  constexpr omi_complex(Code code, double first, double second) noexcept
      : code_(code), first_(first), second_(second) {}

  constexpr Code Representation() const noexcept { return code_; }
  /// Real part or magnitude, as the representation says.
  constexpr double First() const noexcept { return first_; }
  /// Imaginary part or phase, as the representation says.
  constexpr double Second() const noexcept { return second_; }

  /// The parts, converted if need be. A phase of whole quarter turns in degrees gives exact parts.
  double ConvertedReal() const noexcept { return code_ == RECTANGULAR ? first_ : RealOfPolar(); }
  double ConvertedImag() const noexcept { return code_ == RECTANGULAR ? second_ : ImagOfPolar(); }

  /// Whether both doubles are zero, in any representation.
  constexpr bool IsZero() const noexcept { return first_ == 0.0 && second_ == 0.0; }
  /// Becomes the rectangular zero.
  constexpr void Zero() noexcept { *this = omi_complex(); }

  /// By representation and doubles: equal values in two representations are different.
  friend constexpr bool operator==(omi_complex const&, omi_complex const&) noexcept = default;

 private:
  double RealOfPolar() const noexcept;
  double ImagOfPolar() const noexcept;

  Code code_ = RECTANGULAR;
  double first_ = 0.0;
  double second_ = 0.0;
};
