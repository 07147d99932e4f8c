#pragma once

#include "dtmC_DatumRef.h"
#include "kloC_Vector.h"

/// Its components in one step, in units of force times length.
class TVO_API kloC_MomentState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_MomentState)

 public:
  kloC_MomentState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "MomentState")
};

/// Moments at points.
class TVO_API kloC_Moment final : public kprC_StateAccess<kloC_Vector, kloC_MomentState> {
  CLS_PERSISTENT(kloC, kloC_Moment)

 public:
  kloC_Moment() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "Moment")
  KLOC_VECTOR_NAMES(cm1, cm2, cm3)
  KPRC_CMD(follower)

  bool follower = false;  ///< turns with the points
  dtmC_DatumRef csys;     ///< system of the components
};
