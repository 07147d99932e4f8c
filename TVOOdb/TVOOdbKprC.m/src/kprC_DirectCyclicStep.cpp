#include "kprC_DirectCyclicStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_DirectCyclicStep::Attributes() {
  using Self = kprC_DirectCyclicStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_DirectCyclicStep", 1383)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
                                .Attribute("maxNumInc", &Self::maxNumInc)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("minInc", &Self::minInc)
                                .Attribute("maxInc", &Self::maxInc)
                                .Attribute("deltmx", &Self::deltmx)
                                .Attribute("cetol", &Self::cetol)
                                .Attribute("extrapolation", &Self::extrapolation)
                                .Attribute("continueAnalysis", &Self::continueAnalysis)
                                .Attribute("maxNumIterations", &Self::maxNumIterations)
                                .Attribute("initialTerms", &Self::initialTerms)
                                .Attribute("maxTerms", &Self::maxTerms)
                                .Attribute("termsIncrement", &Self::termsIncrement)
                                .Attribute("minCycleInc", &Self::minCycleInc)
                                .Attribute("maxCycleInc", &Self::maxCycleInc)
                                .Attribute("maxNumCycles", &Self::maxNumCycles)
                                .Attribute("timePoints", &Self::timePoints)
                                .Attribute("fatigue", &Self::fatigue)
                                .Attribute("damageExtrapolationTolerance", &Self::damageExtrapolationTolerance)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_DirectCyclicStep::AssertValid() const {
  kprC_AssertDirectSolver(*this);
  AssertIncrements();
  if (timeIncrementationMethod == AUTOMATIC) {
    kprC_Assert(kprC_IsGivenPositive(cetol) || kprC_IsGivenPositive(deltmx), 10);
  }
  kprC_Assert(maxNumIterations > 0, 272);
  AssertSeries();
  AssertCycles();
}

void kprC_DirectCyclicStep::AssertSeries() const {
  kprC_Assert(initialTerms > 0 && initialTerms < 100, 265);
  kprC_Assert(maxTerms > 0 && maxTerms < 100, 266);
  kprC_Assert(initialTerms < maxTerms, 269);
  kprC_Assert(termsIncrement > 0, 271);
}

void kprC_DirectCyclicStep::AssertCycles() const {
  kprC_Assert(minCycleInc > 0, 267);
  kprC_Assert(maxCycleInc > 0, 268);
  kprC_Assert(minCycleInc < maxCycleInc, 270);
  kprC_Assert(damageExtrapolationTolerance > 0.0, 273);
}
