#pragma once

#include "kloC_Values.h"

/// The pressure in one step, in force per area; for a hydrostatic one the elevations of zero and of the reference
/// pressure.
class TVO_API kloC_PressureState : public kloC_LoadState {
  CLS_PERSISTENT(kloC, kloC_PressureState)

 public:
  kloC_PressureState() = default;
  mdl_PropAttrBase* EditMark() override { return &magnitude; }
  KPRC_NAMED_CMD(pythonTypeName, "PressureState")

  KLOC_MAGNITUDE(kloC_PressureState)
  mdl_PropAttr<double> hZero;       ///< elevation of zero pressure, in units of length
  mdl_PropAttr<double> hReference;  ///< elevation of the magnitude
  bool useHydrostatic = false;      ///< hydrostatic in this step, whatever the load's distribution
};

/// A pressure on a surface, positive into the body.
class TVO_API kloC_Pressure : public kloC_ComplexLoad<kloC_Pressure, kloC_PressureState> {
  CLS_PERSISTENT(kloC, kloC_Pressure)

 public:
  kloC_Pressure() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  /// The ways of a pressure's own need neither a field nor a user's subroutine: they count as uniform.
  std::optional<kloC_DistributionEnm> Distribution() const override;

  KPRC_NAMED_CMD(constructorCmd, "Pressure")
  KLOC_MAGNITUDE_ACCESS()
  KPRC_VALUE_CMD(hZero)
  KPRC_VALUE_CMD(hReference)
  KPRC_CMD(refPoint)

  KLOC_COMPLEX_MAGNITUDE(kloC_Pressure)
  kloC_PressureDistributionEnm distType = kloC_PressureDistributionEnm::UNIFORM;
  rgnC_Region referencePoint;  ///< whose motion stagnation and viscous pressures are relative to

 protected:
  /// Refuses a hydrostatic pressure in an explicit step, 19, and one whose two elevations are the same, 20.
  void AssertKind() const override;
};
