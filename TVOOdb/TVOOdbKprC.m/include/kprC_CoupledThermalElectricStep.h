#pragma once

#include "kprC_IncrementalStep.h"

/// "Coupled thermal-electric": temperatures and electric potentials solved for together, in time or steady.
///
/// A new step is not valid: the caller chooses the increments.
class TVO_API kprC_CoupledThermalElectricStep final : public kprC_IncrementalStep {
  CLS_PERSISTENT(kprC, kprC_CoupledThermalElectricStep)

 public:
  kprC_CoupledThermalElectricStep() = default;

  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Numbers 145, those of the increments and 11.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "CoupledThermalElectricStep")
  KPRC_CMD(end)
  KPRC_CMD(deltmx)
  KPRC_CMD(mxdem)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)
  KPRC_CMD(solutionTechnique)

  ResponseEnm response = TRANSIENT;      ///< the usual one
  double end = cls_NotGiven<double>;     ///< rate of change below which the state counts as steady and ends the step
  double deltmx = cls_NotGiven<double>;  ///< largest change of temperature in an increment
  double mxdem = 0.1;                    ///< largest change of emissivity in an increment; 0.1 is usual
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;

 protected:
  ResponseEnm OwnResponse() const override { return response; }
};
