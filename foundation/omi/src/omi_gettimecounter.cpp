#include "omi_gettimecounter.h"

#include <chrono>
#include <cmath>
#include <limits>

namespace {
auto const start = std::chrono::steady_clock::now();
}

double omi_gettimecounter() {
  static double last = 0.0;
  double const now = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  last = now > last ? now : std::nextafter(last, std::numeric_limits<double>::infinity());
  return last;
}
