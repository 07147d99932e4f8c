#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_FrequencyRange.h"
#include "kprC_ModeRange.h"
#include "kprC_RetainedDofs.h"
#include "rgnC_Region.h"

/// "Substructure generation": the matrices of a part of the model, reduced to its retained degrees of freedom.
///
/// A new step is not valid: the caller chooses `substructureIdentifier`.
class TVO_API kprC_SubstructureGenerateStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_SubstructureGenerateStep)

 public:
  /// Fields that the damping ratios are for.
  enum class GlobalDampingEnm { NONE = 0, ALL = 1, ACOUSTIC = 2, MECHANICAL = 3 };
  /// Where results are to be recovered from the retained degrees of freedom.
  enum class RecoveryMatrixEnm { NONE = 0, WHOLE_MODEL = 1, REGION = 2 };
  /// How the modes are told that are kept beside the retained degrees of freedom.
  enum class RetainedEigenmodesEnm { NONE = 0, FREQUENCY_RANGE = 1, MODE_RANGE = 2 };
  /// Sources of the damping: that of the elements, the step's ratios, or both.
  enum class StructuralDampingEnm { NONE = 0, ELEMENT = 1, FACTOR = 2, COMBINED = 3 };
  enum class ViscousDampingEnm { NONE = 0, ELEMENT = 1, FACTOR = 2, COMBINED = 3 };
  /// Form of the data for a multibody program.
  enum class FlexibleBodyEnum { NONE = 0, GENERIC = 1, SIMPACK = 2, SID = 3, EXCITE = 4, ADAMS = 5 };

  kprC_SubstructureGenerateStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Number 308. The ranges and retained degrees of freedom are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "SubstructureGenerateStep")
  KPRC_CMD(retainedDofsList)
  KPRC_CMD(eliminatedDofsList)
  KPRC_CMD(retainedEigenmodes)
  KPRC_CMD(globalDamping)
  KPRC_CMD(viscDamping)
  KPRC_CMD(strDamping)
  KPRC_CMD(alphaDampingRatio)
  KPRC_CMD(betaDampingRatio)
  KPRC_CMD(structuralDampingRatio)
  KPRC_CMD(substructureIdentifier)
  KPRC_CMD(recoveryRegion)
  KPRC_CMD(genGravityLoadVectors)
  KPRC_CMD(genFreqDepProps)
  KPRC_CMD(frequencyDepProps)
  KPRC_CMD(genReducedMassMatrix)
  KPRC_CMD(genStrDampingMatrix)
  KPRC_CMD(genViscDampingMatrix)
  KPRC_CMD(retainedEigenmodesEnm)
  KPRC_CMD(frequencyRange)
  KPRC_CMD(modeRange)
  KPRC_CMD(recoveryMatrix)
  KPRC_CMD(flexibleBody)

  double timePeriod = 1.0;
  cls_xoList<kprC_RetainedDofs> retainedDofsList;
  cls_xoList<kprC_RetainedDofs> eliminatedDofsList;  ///< taken out of the retained ones
  cls_xp1DArrayListInt retainedEigenmodes;           ///< numbers of single modes
  GlobalDampingEnm globalDamping = GlobalDampingEnm::NONE;
  ViscousDampingEnm viscDamping = ViscousDampingEnm::NONE;
  StructuralDampingEnm strDamping = StructuralDampingEnm::NONE;
  double alphaDampingRatio = 0.0;  ///< mass proportional
  double betaDampingRatio = 0.0;   ///< stiffness proportional, in the model's unit of time
  double structuralDampingRatio = 0.0;
  int substructureIdentifier = 0;  ///< from 1 to 9999
  rgnC_Region recoveryRegion;      ///< of use with RecoveryMatrixEnm::REGION alone
  bool genGravityLoadVectors = false;
  bool genFreqDepProps = false;    ///< takes the materials' properties at frequencyDepProps
  double frequencyDepProps = 0.0;  ///< in cycles per unit of time
  bool genReducedMassMatrix = false;
  bool genStrDampingMatrix = false;
  bool genViscDampingMatrix = false;
  RetainedEigenmodesEnm retainedEigenmodesEnm = RetainedEigenmodesEnm::NONE;
  cls_xoList<kprC_FrequencyRange> frequencyRange;  ///< modes that are kept, as modeRange
  cls_xoList<kprC_ModeRange> modeRange;
  RecoveryMatrixEnm recoveryMatrix = RecoveryMatrixEnm::WHOLE_MODEL;  ///< the usual one
  FlexibleBodyEnum flexibleBody = FlexibleBodyEnum::NONE;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SubstructureGenerateStep::GlobalDampingEnm>[] = {
    {"NONE", 0}, {"ALL", 1}, {"ACOUSTIC", 2}, {"MECHANICAL", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SubstructureGenerateStep::RecoveryMatrixEnm>[] = {
    {"NONE", 0}, {"WHOLE_MODEL", 1}, {"REGION", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SubstructureGenerateStep::RetainedEigenmodesEnm>[] = {
    {"NONE", 0}, {"FREQUENCY_RANGE", 1}, {"MODE_RANGE", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SubstructureGenerateStep::StructuralDampingEnm>[] = {
    {"NONE", 0}, {"ELEMENT", 1}, {"FACTOR", 2}, {"COMBINED", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SubstructureGenerateStep::ViscousDampingEnm>[] = {
    {"NONE", 0}, {"ELEMENT", 1}, {"FACTOR", 2}, {"COMBINED", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SubstructureGenerateStep::FlexibleBodyEnum>[] = {
    {"NONE", 0}, {"GENERIC", 1}, {"SIMPACK", 2}, {"SID", 3}, {"EXCITE", 4}, {"ADAMS", 5}, {nullptr, 0}};
