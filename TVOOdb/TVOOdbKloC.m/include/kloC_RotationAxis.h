#pragma once

#include "cls_Containers.h"
#include "kloC_Enums.h"
#include "kprC_Step.h"
#include "rgnC_Region.h"

/// How a point of an axis is given: by something picked, or by coordinates. Stored by name.
enum class kloC_AxisPointEnm { PICKED = 0, COORDINATES = 1 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_AxisPointEnm>[] = {{"PICKED", 0}, {"COORDINATES", 1}, {nullptr, 0}};

/// The axis about which a load turns, through two points.
class TVO_API kloC_RotationAxis {
 public:
  /// Refuses points that are the same: 56.
  void AssertAxis() const;
  /// Whether it is the axis of an axisymmetric model: from (0,0,0) to (0,1,0).
  bool IsAxisOfSymmetry() const;

  KPRC_NAMED_CMD(pointOneCmd, "point1")
  KPRC_NAMED_CMD(pointTwoCmd, "point2")

  rgnC_Region pickedAxisPt1;
  rgnC_Region pickedAxisPt2;
  cls_xp1DArrayListFloat coordAxisPt1 = {0.0F, 0.0F, 0.0F};  ///< coordinates, in units of length
  cls_xp1DArrayListFloat coordAxisPt2 = {0.0F, 1.0F, 0.0F};
  kloC_AxisPointEnm axisSelPoint1 = kloC_AxisPointEnm::COORDINATES;
  kloC_AxisPointEnm axisSelPoint2 = kloC_AxisPointEnm::COORDINATES;
};
