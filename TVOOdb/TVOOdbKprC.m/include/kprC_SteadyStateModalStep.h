#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_FrequencySweep.h"
#include "kprC_ModalDampings.h"
#include "kprC_SteadyStateModalFrequency.h"

/// "Steady-state dynamics, Modal": the response to harmonic loads, put together from the modes that a frequency step
/// found.
///
/// A new step is not valid: the caller adds a range of frequencies.
class TVO_API kprC_SteadyStateModalStep final : public kprC_AnalysisStep,
                                                public kprC_FrequencySweep<kprC_SteadyStateModalFrequency>,
                                                public kprC_StructuralModalDampings {
  CLS_PERSISTENT(kprC, kprC_SteadyStateModalStep)

 public:
  kprC_SteadyStateModalStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 45 and 145. The dampings and ranges are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "SteadyStateModalStep")
  KPRC_CMD(subdivideUsingEigenfrequencies)

  double timePeriod = 1.0;
  bool subdivideUsingEigenfrequencies = true;  ///< ends parts of the ranges at the eigenfrequencies; usual
};
