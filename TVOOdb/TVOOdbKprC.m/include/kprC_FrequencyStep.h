#pragma once

#include "kprC_AnalysisStep.h"
#include "rgnC_Region.h"

/// "Frequency": the natural frequencies and modes of the model. Frequencies are in cycles per unit of time.
///
/// A new step is not valid: the caller chooses `numEigen` or `maxEigen`.
class TVO_API kprC_FrequencyStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_FrequencyStep)

 public:
  enum AllEigenEnm { ALL = 0 };
  enum NormalizationEnm { DISPLACEMENT = 0, MASS = 1 };
  enum AcousticEnm { AC_OFF = 0, AC_ON = 1, AC_PROJECTION = 2 };

  kprC_FrequencyStep();

  double TimePeriod() const override { return timePeriod; }
  bool SimBased() const override { return simLinearDynamics || eigensolver == AMS; }
  /// Numbers 1, 2, 145, 95, 241 to 244, 247, 248 and, by the eigensolver, 252, 245, 161, 159, 3, 4, 251, 160, 87, 88 or
  /// 89.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "FrequencyStep")
  KPRC_CMD(residualModes)
  KPRC_CMD(numEigen)
  KPRC_CMD(maxEigen)
  KPRC_CMD(shift)
  KPRC_CMD(vectors)
  KPRC_CMD(maxIterations)
  KPRC_CMD(eigensolver)
  KPRC_CMD(minEigen)
  KPRC_CMD(blockSize)
  KPRC_CMD(maxBlocks)
  KPRC_CMD(normalization)
  KPRC_CMD(propertyEvaluationFrequency)
  KPRC_CMD(acousticCoupling)
  KPRC_CMD(limitSavedEigenvectorRegion)
  KPRC_CMD(residualModeRegion)
  KPRC_CMD(residualModeDof)
  KPRC_CMD(substructureCutoffMultiplier)
  KPRC_CMD(firstCutoffMultiplier)
  KPRC_CMD(secondCutoffMultiplier)
  KPRC_CMD(projectDamping)
  KPRC_CMD(acousticRangeFactor)
  KPRC_CMD(simLinearDynamics)

  int numEigen = allEigenvalues;
  double maxEigen = cls_NotGiven<double>;  ///< frequencies, as shift and minEigen
  double shift = cls_NotGiven<double>;
  int vectors = 0;  ///< of the subspace, as maxIterations
  int maxIterations = 30;
  EigensolverEnm eigensolver = LANCZOS;
  bool residualModes = true;
  double minEigen = cls_NotGiven<double>;
  int blockSize = cls_NotGiven<int>;  ///< of the Lanczos method, as maxBlocks
  int maxBlocks = cls_NotGiven<int>;
  double timePeriod = 0.0;
  NormalizationEnm normalization = MASS;
  double propertyEvaluationFrequency = cls_NotGiven<double>;
  AcousticEnm acousticCoupling = AC_ON;
  bool projectDamping = false;
  bool simLinearDynamics = true;
  double substructureCutoffMultiplier = 5.0;  ///< factors of maxEigen, each at most the one before
  double firstCutoffMultiplier = 1.7;
  double secondCutoffMultiplier = 1.1;
  double acousticRangeFactor = 1.0;
  rgnC_Region limitSavedEigenvectorRegion;
  cls_xp1DArrayListString residualModeRegion;  ///< one name for each degree of freedom in residualModeDof
  cls_xp1DArrayListInt residualModeDof;

 private:
  void AssertResidualModes() const;
  void AssertEigensolver() const;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FrequencyStep::AllEigenEnm>[] = {{"ALL", 0}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FrequencyStep::NormalizationEnm>[] = {
    {"DISPLACEMENT", 0}, {"MASS", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FrequencyStep::AcousticEnm>[] = {
    {"AC_OFF", 0}, {"AC_ON", 1}, {"AC_PROJECTION", 2}, {nullptr, 0}};
