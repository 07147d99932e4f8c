#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_PorDragBodyForceState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_PorDragBodyForceState)

 public:
  kloC_PorDragBodyForceState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "PorDragBodyForceState")
};

/// The drag of a porous medium on the fluid in it, by the medium's porosity.
class TVO_API kloC_PorDragBodyForce final : public kprC_StateAccess<kloC_Scalar, kloC_PorDragBodyForceState> {
  CLS_PERSISTENT(kloC, kloC_PorDragBodyForce)

 public:
  kloC_PorDragBodyForce() = default;
  CategoryEnm Category() const override { return FLUID; }

  KPRC_NAMED_CMD(constructorCmd, "PorDragBodyForce")
};
