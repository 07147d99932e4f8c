#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_FrequencyScale.h"
#include "kprC_ModalDampings.h"
#include "kprC_RandomResponseFrequency.h"

/// "Random response": the statistics of the response to random loads, put together from the modes that a frequency step
/// found.
class TVO_API kprC_RandomResponseStep final : public kprC_AnalysisStep,
                                              public kprC_StructuralModalDampings,
                                              public kprC_FrequencyScale {
  CLS_PERSISTENT(kprC, kprC_RandomResponseStep)

 public:
  kprC_RandomResponseStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Number 145. The dampings and ranges are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "RandomResponseStep")
  KPRC_CMD(freq)
  KPRC_CMD(selectedEigenmodes)

  cls_xoList<kprC_RandomResponseFrequency> freq;  ///< ranges of frequencies to work through
  double timePeriod = 1.0;
  cls_xp1DArrayListInt selectedEigenmodes;  ///< modes that take part; all of them if empty
};
