#pragma once

#include "kprC_IncrementalStep.h"

/// "Heat transfer": conduction of heat without mechanics, in time or steady.
///
/// A new step is not valid: the caller chooses the increments.
class TVO_API kprC_HeatTransferStep final : public kprC_IncrementalStep {
  CLS_PERSISTENT(kprC, kprC_HeatTransferStep)

 public:
  kprC_HeatTransferStep() = default;

  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Numbers 275, those of the increments, 11, 276 and 274.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "HeatTransferStep")
  KPRC_CMD(end)
  KPRC_CMD(deltmx)
  KPRC_CMD(mxdem)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)
  KPRC_CMD(reformKernel)
  KPRC_CMD(solutionTechnique)

  ResponseEnm response = TRANSIENT;      ///< the usual one
  double end = cls_NotGiven<double>;     ///< rate of change below which the state counts as steady and ends the step
  double deltmx = cls_NotGiven<double>;  ///< largest change of temperature in an increment
  double mxdem = 0.1;                    ///< largest change of emissivity in an increment; 0.1 is usual
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  int reformKernel = 8;  ///< iterations between two kernel matrices; of use with quasi-Newton alone
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;

 protected:
  ResponseEnm OwnResponse() const override { return response; }
};
