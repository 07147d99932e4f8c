#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_HydroFluidFlowState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_HydroFluidFlowState)

 public:
  kloC_HydroFluidFlowState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "HydroFluidFlowState")
};

/// A flow into a hydrostatic fluid cavity, kept for models that hold it; no menu offers it.
class TVO_API kloC_HydroFluidFlow final : public kprC_StateAccess<kloC_Scalar, kloC_HydroFluidFlowState> {
  CLS_PERSISTENT(kloC, kloC_HydroFluidFlow)

 public:
  kloC_HydroFluidFlow() = default;
  CategoryEnm Category() const override { return FLUID; }

  KPRC_NAMED_CMD(constructorCmd, "HydroFluidFlow")
};
