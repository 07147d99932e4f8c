#include "omi_complex.h"

#include <cmath>
#include <complex>
#include <numbers>

namespace {

std::complex<double> FromDegrees(double magnitude, double phase) noexcept {
  // Turned in whole quarters first, so that 90 degrees leave no residue.
  int quarters = 0;
  double const rest = std::remquo(phase, 90.0, &quarters) * (std::numbers::pi / 180.0);
  double const along = magnitude * std::cos(rest);
  double const across = magnitude * std::sin(rest);
  switch (quarters & 3) {
    case 0: return {along, across};
    case 1: return {-across, along};
    case 2: return {-along, -across};
    default: return {across, -along};
  }
}

std::complex<double> Converted(omi_complex const& value) noexcept {
  switch (value.Representation()) {
    case omi_complex::POLAR_DEGREES: return FromDegrees(value.First(), value.Second());
    case omi_complex::POLAR_RADIANS:
      return {value.First() * std::cos(value.Second()), value.First() * std::sin(value.Second())};
    case omi_complex::RECTANGULAR: break;
  }
  return {value.First(), value.Second()};
}

}  // namespace

double omi_complex::ConvertedReal() const noexcept { return Converted(*this).real(); }
double omi_complex::ConvertedImag() const noexcept { return Converted(*this).imag(); }
