#include "kprC_FlowStep.h"

#include "kprC_incrementChecks.h"

cls_AttributeTable const& kprC_FlowStep::Attributes() {
  using Self = kprC_FlowStep;
  static auto const table = cls_Describe<Self, kprC_AnalysisStep>("kprC_FlowStep", 1618)
                                .Attribute("timePeriod", &Self::timePeriod)
                                .Attribute("energyEquation", &Self::energyEquation)
                                .Attribute("incrementation", &Self::incrementation)
                                .Attribute("initialInc", &Self::initialInc)
                                .Attribute("divergenceTol", &Self::divergenceTol)
                                .Attribute("maximumCFL", &Self::maximumCFL)
                                .Attribute("incAdjustmentFreq", &Self::incAdjustmentFreq)
                                .Attribute("stepGrowthFactor", &Self::stepGrowthFactor)
                                .Attribute("viscousFactor", &Self::viscousFactor)
                                .Attribute("boundaryFactor", &Self::boundaryFactor)
                                .Attribute("momOutputDiagnostics", &Self::momOutputDiagnostics)
                                .Attribute("momOutputConvergence", &Self::momOutputConvergence)
                                .Attribute("momIterationLimit", &Self::momIterationLimit)
                                .Attribute("momCheckingFreq", &Self::momCheckingFreq)
                                .Attribute("momConvergenceLimit", &Self::momConvergenceLimit)
                                .Attribute("pressureType", &Self::pressureType)
                                .Attribute("pressOutputDiagnostics", &Self::pressOutputDiagnostics)
                                .Attribute("pressOutputConvergence", &Self::pressOutputConvergence)
                                .Attribute("pressIterationLimit", &Self::pressIterationLimit)
                                .Attribute("pressCheckingFreq", &Self::pressCheckingFreq)
                                .Attribute("pressConvergenceLimit", &Self::pressConvergenceLimit)
                                .Attribute("transOutputDiagnostics", &Self::transOutputDiagnostics)
                                .Attribute("transOutputConvergence", &Self::transOutputConvergence)
                                .Attribute("transIterationLimit", &Self::transIterationLimit)
                                .Attribute("transCheckingFreq", &Self::transCheckingFreq)
                                .Attribute("transConvergenceLimit", &Self::transConvergenceLimit)
                                .Attribute("turbulenceModel", &Self::turbulenceModel)
                                .Attribute("turbPrandtlNumber", &Self::turbPrandtlNumber)
                                .Attribute("turbCb1", &Self::turbCb1)
                                .Attribute("turbCb2", &Self::turbCb2)
                                .Attribute("turbCv1", &Self::turbCv1)
                                .Attribute("turbCv2", &Self::turbCv2)
                                .Attribute("turbCw1", &Self::turbCw1)
                                .Attribute("turbCw2", &Self::turbCw2)
                                .Attribute("turbCw3", &Self::turbCw3)
                                .Attribute("turbSigma", &Self::turbSigma)
                                .Attribute("turbKappa", &Self::turbKappa)
                                .Attribute("turbCmu", &Self::turbCmu)
                                .Attribute("turbCeps1", &Self::turbCeps1)
                                .Attribute("turbCeps2t", &Self::turbCeps2t)
                                .Attribute("turbCeps3", &Self::turbCeps3)
                                .Attribute("turbSigma_k", &Self::turbSigma_k)
                                .Attribute("turbSigma_eps", &Self::turbSigma_eps)
                                .Attribute("turbSigma_rho", &Self::turbSigma_rho)
                                .Attribute("turbBeta", &Self::turbBeta)
                                .Attribute("turbLambda0", &Self::turbLambda0)
                                .Attribute("pressSolverType", &Self::pressSolverType)
                                .Attribute("pressSmootherType", &Self::pressSmootherType)
                                .Attribute("pressPreSweeps", &Self::pressPreSweeps)
                                .Attribute("pressPostSweeps", &Self::pressPostSweeps)
                                .Attribute("advectionFactor", &Self::advectionFactor)
                                .Constructor(constructorCmd());
  return table;
}

void kprC_FlowStep::AssertValid() const {
  kprC_Assert(timePeriod > 0.0, 77);
  kprC_Assert(initialInc > 0.0, 278);
  kprC_Assert(timePeriod >= initialInc, 78);
  if (incrementation == FIXED_CFL) {
    kprC_Assert(maximumCFL > 0.0, 279);
    kprC_Assert(incAdjustmentFreq > 0, 280);
    kprC_Assert(stepGrowthFactor > 0.0, 281);
  }
  kprC_Assert(divergenceTol > 0.0, 282);
  AssertEquations();
  kprC_Assert(pressureType != SSOR || pressSolverType == CG, 293);
  kprC_Assert(pressPreSweeps >= 1 && pressPreSweeps <= 4, 294);
  kprC_Assert(pressPostSweeps >= 1 && pressPostSweeps <= 4, 295);
  kprC_Assert(turbulenceModel != kprC_TurbulenceModelEnm::VMS, 296);
}

void kprC_FlowStep::AssertEquations() const {
  kprC_Assert(momIterationLimit > 0, 283);
  kprC_Assert(momCheckingFreq > 0, 284);
  kprC_Assert(momConvergenceLimit > 0.0, 285);
  kprC_Assert(pressIterationLimit > 0, 286);
  kprC_Assert(pressCheckingFreq > 0, 287);
  kprC_Assert(pressConvergenceLimit > 0.0, 288);
  kprC_Assert(transIterationLimit > 0, 290);
  kprC_Assert(transCheckingFreq > 0, 291);
  kprC_Assert(transConvergenceLimit > 0.0, 292);
}
