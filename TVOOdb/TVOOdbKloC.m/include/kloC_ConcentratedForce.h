#pragma once

#include "dtmC_DatumRef.h"
#include "kloC_Vector.h"

/// Its components in one step, in units of force.
class TVO_API kloC_ConcentratedForceState final : public kloC_VectorState {
  CLS_PERSISTENT(kloC, kloC_ConcentratedForceState)

 public:
  kloC_ConcentratedForceState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "ConcentratedForceState")
};

/// Forces at points.
class TVO_API kloC_ConcentratedForce final : public kprC_StateAccess<kloC_Vector, kloC_ConcentratedForceState> {
  CLS_PERSISTENT(kloC, kloC_ConcentratedForce)

 public:
  kloC_ConcentratedForce() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "ConcentratedForce")
  KLOC_VECTOR_NAMES(cf1, cf2, cf3)
  KPRC_CMD(follower)

  bool follower = false;  ///< turns with the points
  dtmC_DatumRef csys;     ///< system of the components
};
