#pragma once

#include "kprC_IncrementalStep.h"

/// "Direct cyclic": the stabilized response to a load that repeats, as a Fourier series over one cycle.
///
/// A new step is not valid: the caller chooses the increments and, for automatic ones, `deltmx` or `cetol`. The period
/// is that of one cycle.
class TVO_API kprC_DirectCyclicStep final : public kprC_IncrementalStep {
  CLS_PERSISTENT(kprC, kprC_DirectCyclicStep)

 public:
  kprC_DirectCyclicStep() = default;

  /// Numbers 145, those of the increments, 10, 272, 265, 266, 269, 271, 267, 268, 270 and 273.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "DirectCyclicStep")
  KPRC_CMD(deltmx)
  KPRC_CMD(cetol)
  KPRC_CMD(extrapolation)
  KPRC_CMD(continueAnalysis)
  KPRC_CMD(maxNumIterations)
  KPRC_CMD(initialTerms)
  KPRC_CMD(maxTerms)
  KPRC_CMD(termsIncrement)
  KPRC_CMD(minCycleInc)
  KPRC_CMD(maxCycleInc)
  KPRC_CMD(maxNumCycles)
  KPRC_CMD(timePoints)
  KPRC_CMD(fatigue)
  KPRC_CMD(damageExtrapolationTolerance)

  double deltmx = cls_NotGiven<double>;  ///< largest change of temperature in an increment
  double cetol = cls_NotGiven<double>;   ///< largest difference of creep strain increments
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  bool continueAnalysis = false;  ///< starts from the series at the end of the direct cyclic step before
  // Terms and limits as usual in practice, not zero.
  int maxNumIterations = 200;
  int initialTerms = 11;  ///< of the series, below maxTerms
  int maxTerms = 25;      ///< below 100
  int termsIncrement = 5;
  int minCycleInc = 100;   ///< cycles over which damage is extrapolated at once; of use with fatigue alone
  int maxCycleInc = 1000;  ///< above minCycleInc
  int maxNumCycles = cls_NotGiven<int>;       ///< not given: the solver's own
  cow_String timePoints;                      ///< name of the times of the cycle that are hit exactly
  bool fatigue = false;                       ///< whether damage grows from cycle to cycle
  double damageExtrapolationTolerance = 1.0;  ///< of use with fatigue alone; 1.0 is usual

 private:
  void AssertSeries() const;
  void AssertCycles() const;
};
