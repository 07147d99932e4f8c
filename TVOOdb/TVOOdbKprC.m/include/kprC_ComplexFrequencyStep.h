#pragma once

#include "kprC_AnalysisStep.h"

/// "Complex frequency": the damped or unstable modes, put together from those that a frequency step found.
///
/// Frequencies are in cycles per unit of time.
class TVO_API kprC_ComplexFrequencyStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_ComplexFrequencyStep)

 public:
  enum AllEnm { ALL = 0 };

  kprC_ComplexFrequencyStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 1, 2 and 145.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "ComplexFrequencyStep")
  KPRC_CMD(numEigen)
  KPRC_CMD(shift)
  KPRC_CMD(frictionDamping)
  KPRC_CMD(minEigen)
  KPRC_CMD(maxEigen)
  KPRC_CMD(propertyEvaluationFrequency)

  int numEigen = allEigenvalues;
  double shift = cls_NotGiven<double>;  ///< frequency near which to look
  double timePeriod = 1.0;
  bool frictionDamping = false;            ///< damping by friction that depends on the slip rate
  double minEigen = cls_NotGiven<double>;  ///< frequencies, as maxEigen
  double maxEigen = cls_NotGiven<double>;
  double propertyEvaluationFrequency = cls_NotGiven<double>;  ///< at which properties of the materials are taken
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ComplexFrequencyStep::AllEnm>[] = {{"ALL", 0}, {nullptr, 0}};
