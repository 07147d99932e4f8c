#pragma once

#include "kprC_IncrementalStep.h"

/// "Mass diffusion": diffusion of one material through another, in time or steady.
///
/// A new step is not valid: the caller chooses the increments.
class TVO_API kprC_MassDiffusionStep final : public kprC_IncrementalStep {
  CLS_PERSISTENT(kprC, kprC_MassDiffusionStep)

 public:
  kprC_MassDiffusionStep() = default;

  /// Numbers 145, those of the increments and 17.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "MassDiffusionStep")
  KPRC_CMD(end)
  KPRC_CMD(dcmax)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)

  ResponseEnm response = TRANSIENT;     ///< the usual one
  double end = cls_NotGiven<double>;    ///< rate of change below which the state counts as steady and ends the step
  double dcmax = cls_NotGiven<double>;  ///< largest change of normalized concentration in an increment
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;

 protected:
  ResponseEnm OwnResponse() const override { return response; }
};
