#pragma once

#include "cls_Describe.h"
#include "kloC_Values.h"

// The attributes that several loads have in common.

/// Whether complex values are wanted and the complex magnitude, with three ordinals in sequence.
template <class L, class Parent>
cls_Describe<L, Parent>&& kloC_WithComplexMagnitude(cls_Describe<L, Parent>&& describe, int ordinal) {
  return std::move(describe)
      .Attribute(ordinal, "useComplex", &L::useComplex)
      .Complex(ordinal + 1, "complexMagReal", "complexMagImag", &L::complexMag);
}

/// The two points of an axis: 0 to 5.
template <class L, class Parent>
cls_Describe<L, Parent>&& kloC_WithAxis(cls_Describe<L, Parent>&& describe) {
  return std::move(describe)
      .Attribute(0, "pickedAxisPt1", &L::pickedAxisPt1)
      .Attribute(1, "pickedAxisPt2", &L::pickedAxisPt2)
      .Attribute(2, "coordAxisPt1", &L::coordAxisPt1)
      .Attribute(3, "coordAxisPt2", &L::coordAxisPt2)
      .Attribute(4, "axisSelPoint1", &L::axisSelPoint1)
      .Attribute(5, "axisSelPoint2", &L::axisSelPoint2);
}

/// The set of a fastener that names the connectors: 0 and 1.
template <class L, class Parent>
cls_Describe<L, Parent>&& kloC_WithFastener(cls_Describe<L, Parent>&& describe) {
  return std::move(describe)
      .Attribute(0, "fastenerName", &L::fastenerName)
      .Attribute(1, "fastenerSetName", &L::fastenerSetName);
}
