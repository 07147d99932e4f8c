#pragma once

#include "dtmC_DatumRef.h"
#include "kloC_Values.h"

/// The magnitude of a traction in one step.
class TVO_API kloC_TractionState : public kloC_LoadState {
  CLS_ABSTRACT(kloC, kloC_TractionState)

 public:
  KLOC_MAGNITUDE(kloC_TractionState)
};

/// A load per area of a surface or per length of an edge, in a direction of its own.
class TVO_API kloC_Traction : public kloC_ComplexLoad<kloC_Traction, kloC_TractionState> {
  CLS_ABSTRACT(kloC, kloC_Traction)

 public:
  /// The axis about which the angle turns the system. Stored by name.
  enum class AxisEnm { AXIS_1 = 0, AXIS_2 = 1, AXIS_3 = 2 };

  KLOC_MAGNITUDE_ACCESS()
  KPRC_CMD(traction)
  KPRC_CMD(userCsys)
  KPRC_CMD(angle)
  KPRC_CMD(axis)
  KPRC_CMD(directionVector)
  KPRC_CMD(follower)
  KPRC_CMD(resultant)

  KLOC_COMPLEX_MAGNITUDE(kloC_Traction)
  dtmC_DatumRef csys;   ///< system of the direction: picked, or
  cow_String userCsys;  ///< defined by the user's subroutine
  double angle = 0.0;   ///< turn of the system about the axis, in degrees
  AxisEnm axis = AxisEnm::AXIS_1;
  cls_xp1DArrayListDouble directionVector;  ///< three components, or none
  bool follower = true;                     ///< the direction turns with the surface
  bool resultant = false;                   ///< the magnitude is per area of the undeformed surface

 protected:
  /// Whether the direction is any, and whether one must be given.
  virtual bool IsGeneral() const = 0;
  virtual bool NeedsDirection() const = 0;
  /// Refuses a direction without length or with other than three components, 64, a system that is given twice, 65, and a
  /// direction that is fixed though it follows from the surface, 66.
  void AssertKind() const override;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_Traction::AxisEnm>[] = {
    {"AXIS_1", 0}, {"AXIS_2", 1}, {"AXIS_3", 2}, {nullptr, 0}};
