#pragma once

#include "kbcC_Components.h"

/// Nothing varies: it tells the steps in which the base is there.
class TVO_API kbcC_SecondaryBaseBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_SecondaryBaseBCState)

 public:
  kbcC_SecondaryBaseBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "SecondaryBaseBCState")
};

/// Names a part of the supports that a base motion can drive in the modal steps on these frequencies.
class TVO_API kbcC_SecondaryBaseBC final : public kbcC_StateAccess<kbcC_BC, kbcC_SecondaryBaseBCState> {
  CLS_PERSISTENT(kbcC, kbcC_SecondaryBaseBC)

 public:
  kbcC_SecondaryBaseBC() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;
  /// Those of the base's regions that are of the type.
  cls_xoList<rgnC_Region> Regions(rgnC_RegionType type) const override;

  KPRC_NAMED_CMD(constructorCmd, "SecondaryBaseBC")
  KPRC_CMD(regions)
  KPRC_CMD(dofs)

  cls_xoList<rgnC_Region> regions;
  cls_xp2DArrayInt dofs;  ///< for each region its constrained degrees of freedom: 1 to 6, or 0

 protected:
  /// Refuses a base without regions (91), lists that do not match these (92), and lists of more than six degrees of
  /// freedom (94) or of values beyond six (93).
  void AssertKind() const override;
};
