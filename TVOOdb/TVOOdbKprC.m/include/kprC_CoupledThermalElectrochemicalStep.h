#pragma once

#include "kprC_IncrementalStep.h"

/// "Coupled thermal-electrochemical": temperatures, electric potentials and ion concentrations of a battery
/// solved for together.
///
/// A new step is not valid: the caller chooses the increments.
class TVO_API kprC_CoupledThermalElectrochemicalStep final : public kprC_IncrementalStep {
  CLS_PERSISTENT(kprC, kprC_CoupledThermalElectrochemicalStep)

 public:
  kprC_CoupledThermalElectrochemicalStep() = default;

  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Number 145 and those of the increments.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "CoupledThermalElectrochemicalStep")
  KPRC_CMD(deltmx)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)
  KPRC_CMD(solutionTechnique)

  ResponseEnm response = TRANSIENT;      ///< the usual one
  double deltmx = cls_NotGiven<double>;  ///< largest change of temperature in an increment
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;

 protected:
  ResponseEnm OwnResponse() const override { return response; }
};
