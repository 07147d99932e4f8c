#pragma once

#include "kbcC_Components.h"

/// From which step of the global model a submodel is driven in one step, and in which degrees of freedom.
class TVO_API kbcC_SubmodelBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_SubmodelBCState)

 public:
  kbcC_SubmodelBCState() = default;
  mdl_PropAttrBase* EditMark() override { return &dof; }
  KPRC_NAMED_CMD(pythonTypeName, "SubmodelBCState")
  KPRC_CMD(globalStep)
  KPRC_CMD(globalIncrement)
  KPRC_VALUE_CMD(fixed)
  KPRC_VALUE_CMD(dof)
  KPRC_VALUE_CMD(centerZoneSize)
  KPRC_VALUE_CMD(scale)

  mdl_PropAttr<bool> fixed;             ///< held at what the step before left
  cow_String globalStep;                ///< name or number of the step in the global analysis
  int globalIncrement = 0;              ///< of that step; 0 for its last
  mdl_PropAttr<cls_xpListInt> dof;      ///< driven degrees of freedom, from 1
  mdl_PropAttr<double> centerZoneSize;  ///< around a shell's middle surface, in units of length
  mdl_PropAttr<bool> scale;             ///< the global step's time is scaled to that of this step
};

/// Drives the boundary of a submodel by the results of a global model.
class TVO_API kbcC_SubmodelBC final : public kbcC_StateAccess<kbcC_BC, kbcC_SubmodelBCState> {
  CLS_PERSISTENT(kbcC, kbcC_SubmodelBC)

 public:
  kbcC_SubmodelBC() = default;
  CategoryEnm Category() const override { return OTHER_BC; }
  bool AllowedInALoadCase() const override { return true; }
  bool NYIForLoadCase() const override { return true; }
  bool ValidInPerturbationStep(int, bool) const override { return false; }

  KPRC_NAMED_CMD(constructorCmd, "SubmodelBC")
  KPRC_CMD(globalDrivingRegion)
  KPRC_CMD(shellThickness)
  KPRC_CMD(absoluteExteriorTolerance)
  KPRC_CMD(exteriorTolerance)

  cow_String globalDrivingRegion;          ///< set of the global model; empty for all of it
  double shellThickness = 0.0;             ///< of the global model where shells drive solids, in units of length
  double absoluteExteriorTolerance = 0.0;  ///< how far the boundary may lie outside, in units of length
  double exteriorTolerance = 0.05;         ///< the same, as a fraction of the size of an element

 protected:
  /// Refuses what is given in a step, the initial one included, that does not take the type: 45.
  void AssertKind() const override;
};
