#pragma once

#include "kprC_AnalysisStep.h"

/// "Static, Linear perturbation": the linear response to loads, about the state that the last general step left.
class TVO_API kprC_StaticLinearPerturbationStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_StaticLinearPerturbationStep)

 public:
  kprC_StaticLinearPerturbationStep() = default;

  double TimePeriod() const override { return timePeriod; }
  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }

  KPRC_NAMED_CMD(constructorCmd, "StaticLinearPerturbationStep")
  KPRC_CMD(solutionTechnique)
  KPRC_CMD(gapDistance)
  KPRC_CMD(scaleFactor)

  double timePeriod = 1.0;
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;
  /// Of use with LCP_CONTACT alone: up to which distance gaps are looked at, and a factor of it, which
  /// usually is none.
  double gapDistance = cls_NotGiven<double>;
  double scaleFactor = 1.0;
};
