#include "kloC_RotationAxis.h"

#include "kloC_assert.h"

void kloC_RotationAxis::AssertAxis() const {
  // A picked point and one given by coordinates may still fall together: that shows only in the model.
  bool const comparable = axisSelPoint1 == axisSelPoint2;
  bool const same = axisSelPoint1 == kloC_AxisPointEnm::PICKED ? pickedAxisPt1 == pickedAxisPt2
                                                               : coordAxisPt1 == coordAxisPt2;
  kloC_Assert(!comparable || !same, 56);
}

bool kloC_RotationAxis::IsAxisOfSymmetry() const {
  bool const byCoordinates =
      axisSelPoint1 == kloC_AxisPointEnm::COORDINATES && axisSelPoint2 == kloC_AxisPointEnm::COORDINATES;
  return byCoordinates && coordAxisPt1 == cls_xp1DArrayListFloat{0.0F, 0.0F, 0.0F} &&
         coordAxisPt2 == cls_xp1DArrayListFloat{0.0F, 1.0F, 0.0F};
}
