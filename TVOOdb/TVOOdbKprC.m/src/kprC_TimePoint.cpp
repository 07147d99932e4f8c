#include "kprC_TimePoint.h"

#include <cmath>

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_TimePoint::Attributes() {
  static auto const table =
      cls_Describe<kprC_TimePoint>("kprC_TimePoint", 809).Attribute("points", &kprC_TimePoint::points);
  return table;
}

void kprC_TimePoint::AssertValid() const {
  kprC_Assert(!points.IsEmpty(), 168);
  double reached = 0.0;
  double count = 0.0;
  for (auto const& entry : points) {
    kprC_Assert(entry.Length() == 1 || entry.Length() == 3, 167);
    double const start = entry.First();
    kprC_Assert(start >= 0.0, 264);
    kprC_Assert(start >= reached, 169);
    reached = start;
    count += 1.0;
    if (entry.Length() == 3) {
      double const end = entry[1];
      double const increment = entry[2];
      kprC_Assert(start <= end, 171);
      kprC_Assert(increment > 0.0, 172);
      reached = end;
      count += std::floor((end - start) / increment);
    }
    kprC_Assert(count <= 1.0e6, 173);
  }
}
