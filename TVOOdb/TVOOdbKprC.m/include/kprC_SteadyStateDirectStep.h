#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_ComplexSystem.h"
#include "kprC_FrequencySweep.h"
#include "kprC_SteadyStateDirectFrequency.h"

/// "Steady-state dynamics, Direct": the response to harmonic loads, from the equations of the whole model at each
/// frequency.
///
/// A new step is not valid: the caller adds a range of frequencies.
class TVO_API kprC_SteadyStateDirectStep final : public kprC_AnalysisStep,
                                                 public kprC_FrequencySweep<kprC_SteadyStateDirectFrequency>,
                                                 public kprC_ComplexSystem {
  CLS_PERSISTENT(kprC, kprC_SteadyStateDirectStep)

 public:
  kprC_SteadyStateDirectStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Number 45. The ranges are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "SteadyStateDirectStep")
  KPRC_CMD(subdivideUsingEigenfrequencies)

  double timePeriod = 1.0;
  bool subdivideUsingEigenfrequencies = false;  ///< ends parts of the ranges at the eigenfrequencies
};
