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

std::complex<double> FromPolar(omi_complex const& value) noexcept {
  if (value.Representation() == omi_complex::POLAR_DEGREES) {
    return FromDegrees(value.First(), value.Second());
  }
  return {value.First() * std::cos(value.Second()), value.First() * std::sin(value.Second())};
}

}  // namespace

double omi_complex::RealOfPolar() const noexcept { return FromPolar(*this).real(); }
double omi_complex::ImagOfPolar() const noexcept { return FromPolar(*this).imag(); }
