#pragma once

#include "kbcC_Components.h"

/// How far an Eulerian mesh may follow what it surrounds in one step, by axis 1 to 3. A number that is not given leaves
/// the solver's own.
class TVO_API kbcC_EulerianMotionBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_EulerianMotionBCState)

 public:
  kbcC_EulerianMotionBCState() = default;
  /// Refuses numbers that are given beyond their ranges: 70 to 75.
  void AssertValid() const override;
  KPRC_NAMED_CMD(pythonTypeName, "EulerianMotionBCState")
  KPRC_VALUE_CMD(ctrPosition1) KPRC_VALUE_CMD(ctrPosition2) KPRC_VALUE_CMD(ctrPosition3)
  KPRC_VALUE_CMD(posPosition1) KPRC_VALUE_CMD(posPosition2) KPRC_VALUE_CMD(posPosition3)
  KPRC_VALUE_CMD(negPosition1) KPRC_VALUE_CMD(negPosition2) KPRC_VALUE_CMD(negPosition3)
  KPRC_VALUE_CMD(expansionRatio1) KPRC_VALUE_CMD(expansionRatio2) KPRC_VALUE_CMD(expansionRatio3)
  KPRC_VALUE_CMD(contractionRatio1) KPRC_VALUE_CMD(contractionRatio2) KPRC_VALUE_CMD(contractionRatio3)
  KPRC_VALUE_CMD(aspectRatioLimit) KPRC_VALUE_CMD(displacementTolerance)
  KPRC_VALUE_CMD(volumeThreshold) KPRC_VALUE_CMD(bufferSize)

  /// The mesh's centre, and its faces towards the positive and negative end of an axis.
  mdl_PropAttr<kbcC_EulerianPositionEnm> ctrPosition1, ctrPosition2, ctrPosition3;
  mdl_PropAttr<kbcC_EulerianPositionEnm> posPosition1, posPosition2, posPosition3;
  mdl_PropAttr<kbcC_EulerianPositionEnm> negPosition1, negPosition2, negPosition3;
  /// The mesh's largest size over its first, from 1, and its smallest over the first, from 0 to 1.
  mdl_PropAttr<double> expansionRatio1, expansionRatio2, expansionRatio3;
  mdl_PropAttr<double> contractionRatio1, contractionRatio2, contractionRatio3;
  mdl_PropAttr<double> aspectRatioLimit;       ///< how much the mesh's aspect ratio may change, from 1
  mdl_PropAttr<double> displacementTolerance;  ///< smaller motions are not followed; from 0, in units of length
  mdl_PropAttr<double> volumeThreshold;        ///< fraction of material from which an element counts as filled, 0 to 1
  mdl_PropAttr<double> bufferSize;             ///< between the material and the mesh's faces, in elements, from 0
};

/// A motion of an Eulerian mesh that follows a surface or a material.
class TVO_API kbcC_EulerianMotionBC final : public kbcC_StateAccess<kbcC_BC, kbcC_EulerianMotionBCState> {
  CLS_PERSISTENT(kbcC, kbcC_EulerianMotionBC)

 public:
  using PositionEnm = kbcC_EulerianPositionEnm;

  kbcC_EulerianMotionBC() = default;
  CategoryEnm Category() const override { return OTHER_BC; }
  bool AllowedInALoadCase() const override { return false; }
  bool ValidInPerturbationStep(int, bool) const override { return false; }

  KPRC_NAMED_CMD(constructorCmd, "EulerianMotionBC")
  KPRC_CMD(instanceName)
  KPRC_CMD(materialName)
  KPRC_CMD(followRegion)

  cow_String instanceName;    ///< part instance that is the mesh
  cow_String materialName;    ///< material instance that is followed
  bool followRegion = false;  ///< the region is followed instead, a surface
};
