#pragma once

#include "kprC_AnalysisStep.h"

/// Where procedures differ in what they ask of their increments.
struct kprC_IncrementRules {
  int noInitialInc = 74;           ///< number that refuses an initial increment that is not positive
  bool minIncFirst = false;        ///< maxInc is compared with minInc and initialInc before it is with zero
  bool maxIncWithinPeriod = true;  ///< maxInc may not exceed the period
  bool maxIncOfSolver = false;     ///< the solver chooses maxInc
};

/// What the steps have in common that go through a period of time in increments. No class of the database: each step
/// stores these values in an order of its own.
///
/// A new step is not valid: the caller chooses `initialInc` and, for automatic increments, `minInc` and `maxInc`.
/// Times are in the model's unit of time.
class TVO_API kprC_IncrementalStep : public kprC_AnalysisStep {
 public:
  double TimePeriod() const override { return timePeriod; }

  /// The smallest increment that the step proposes, of the second of two times.
  static constexpr double MinimumDef(double first, double second) noexcept { return TypicalMinimumDef(first, second); }

  KPRC_CMD(timeIncrementationMethod)
  KPRC_CMD(maxNumInc)
  KPRC_CMD(initialInc)
  KPRC_CMD(minInc)
  KPRC_CMD(maxInc)

  double timePeriod = 1.0;
  TimeIncrementationMethodEnm timeIncrementationMethod = AUTOMATIC;
  int maxNumInc = 100;
  double initialInc = 0.0;  ///< the increment itself, if all are to be the same
  double minInc = 0.0;      ///< of use with automatic increments alone, as maxInc
  double maxInc = 0.0;

 protected:
  /// Numbers 77, 74, 78, 5 and, of automatic increments, 75, 76, 82, 83, 81 and 80.
  void AssertIncrements(kprC_IncrementRules const& rules) const;
  void AssertIncrements() const { AssertIncrements({}); }
};
