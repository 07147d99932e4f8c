#pragma once

#include "kloC_Values.h"

/// From which step and increment of the global model the stresses are taken in one step, and by what factor.
class TVO_API kloC_SubmodelStressBasedState final : public kloC_LoadState {
  CLS_PERSISTENT(kloC, kloC_SubmodelStressBasedState)

 public:
  kloC_SubmodelStressBasedState() = default;
  mdl_PropAttrBase* EditMark() override { return &scale; }
  KPRC_NAMED_CMD(pythonTypeName, "SubmodelStressBasedState")

  mdl_PropAttr<bool> fixed;
  cow_String globalStep;
  int globalIncrement = 0;
  mdl_PropAttr<double> scale;
};

/// Drives the boundary of a submodel by the stresses of a global model.
class TVO_API kloC_SubmodelStressBased final : public kprC_StateAccess<kloC_Load, kloC_SubmodelStressBasedState> {
  CLS_PERSISTENT(kloC, kloC_SubmodelStressBased)

 public:
  kloC_SubmodelStressBased() = default;
  CategoryEnm Category() const override { return OTHER_LOAD; }
  bool AllowedInALoadCase() const override { return true; }

  KPRC_NAMED_CMD(constructorCmd, "SubmodelStressBased")
  KPRC_CMD(globalDrivingRegion)
  KPRC_CMD(absoluteExteriorTolerance)
  KPRC_CMD(exteriorTolerance)
  KPRC_CMD(globalStep)
  KPRC_CMD(globalIncrement)
  KPRC_VALUE_CMD(scale)
  KPRC_VALUE_CMD(fixed)

  cow_String globalDrivingRegion;
  double absoluteExteriorTolerance = 0.0;  ///< in units of length
  double exteriorTolerance = 0.05;         ///< as a fraction of the element size
};
