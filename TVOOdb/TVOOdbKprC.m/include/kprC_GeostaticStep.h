#pragma once

#include "kprC_IncrementalStep.h"

/// "Geostatic": the equilibrium of soil under its own weight from which other steps start.
///
/// A new step is not valid: the caller chooses the increments. The step is outside the time of the analysis:
/// `timePeriod` is the scale of its increments alone.
class TVO_API kprC_GeostaticStep final : public kprC_IncrementalStep {
  CLS_PERSISTENT(kprC, kprC_GeostaticStep)

 public:
  kprC_GeostaticStep() = default;

  double TimePeriod() const override { return 0.0; }
  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Numbers 275, those of the increments but 80, 28, 27 and 276.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "GeostaticStep")
  KPRC_CMD(utol)
  KPRC_CMD(reformKernel)
  KPRC_CMD(solutionTechnique)

  NlgeomEnm nlgeom = OFF;
  double utol = cls_NotGiven<double>;  ///< largest change of displacement in an increment, of automatic ones
  int reformKernel = 8;                ///< iterations between two kernel matrices; of use with quasi-Newton alone
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};
