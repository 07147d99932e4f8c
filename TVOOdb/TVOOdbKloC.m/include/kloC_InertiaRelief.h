#pragma once

#include "dtmC_DatumRef.h"
#include "kloC_Values.h"

/// The directions in which the body is free in one step, about which point, and whether the load is held as it was.
class TVO_API kloC_InertiaReliefState final : public kloC_LoadState {
  CLS_PERSISTENT(kloC, kloC_InertiaReliefState)

 public:
  kloC_InertiaReliefState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "InertiaReliefState")
  static constexpr std::array<mdl_PropAttr<bool> kloC_InertiaReliefState::*, 6> Directions() {
    using S = kloC_InertiaReliefState;
    return {&S::u1, &S::u2, &S::u3, &S::ur1, &S::ur2, &S::ur3};
  }

  mdl_PropAttr<bool> fixed;
  mdl_PropAttr<bool> u1, u2, u3, ur1, ur2, ur3;
  mdl_PropAttr<cls_xp1DArrayListDouble> referencePoint;  ///< coordinates, in units of length
  mdl_PropAttr<bool> isReferencePointDefined;
};

/// Balances the loads of a free body by the inertia of its rigid motions.
class TVO_API kloC_InertiaRelief final : public kprC_StateAccess<kloC_Load, kloC_InertiaReliefState> {
  CLS_PERSISTENT(kloC, kloC_InertiaRelief)

 public:
  kloC_InertiaRelief() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "InertiaRelief")
  KPRC_VALUE_CMD(u1) KPRC_VALUE_CMD(u2) KPRC_VALUE_CMD(u3) KPRC_VALUE_CMD(ur1) KPRC_VALUE_CMD(ur2) KPRC_VALUE_CMD(ur3)
  KPRC_VALUE_CMD(fixed)
  KPRC_VALUE_CMD(referencePoint)
  KPRC_VALUE_CMD(isReferencePointDefined)

  dtmC_DatumRef localCsys;

 protected:
  /// Refuses a local system for all six directions, 50, and a load that is held where it is created, 51.
  void AssertKind() const override;
  /// Refuses directions that the space has not got, 48 and 49, and a local system for all that it has, 50.
  void AssertInSpace(kloC_SpaceEnm space) const override;
};
