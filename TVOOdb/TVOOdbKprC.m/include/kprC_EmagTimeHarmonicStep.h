#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_EmagTimeHarmonicFrequency.h"
#include "kprC_FrequencySweep.h"

/// "Electromagnetic, Time harmonic": eddy currents under harmonic excitation.
///
/// A new step is not valid: the caller adds a range of frequencies.
class TVO_API kprC_EmagTimeHarmonicStep final : public kprC_AnalysisStep,
                                                public kprC_FrequencySweep<kprC_EmagTimeHarmonicFrequency> {
  CLS_PERSISTENT(kprC, kprC_EmagTimeHarmonicStep)

 public:
  kprC_EmagTimeHarmonicStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Number 309, which has no text. The ranges are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "EmagTimeHarmonicStep")

  double timePeriod = 1.0;
};
