#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_ModalDampings.h"

/// "Modal dynamics": the response in time, put together from the modes that a frequency step found.
///
/// A new step is not valid: the caller chooses `incSize`. Times are in the model's unit of time.
class TVO_API kprC_ModalDynamicsStep final : public kprC_AnalysisStep, public kprC_ModalDampings {
  CLS_PERSISTENT(kprC, kprC_ModalDynamicsStep)

 public:
  kprC_ModalDynamicsStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 6, 77, 145 and 314. The dampings are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "ModalDynamicsStep")
  KPRC_CMD(continueAnalysis)
  KPRC_CMD(incSize)
  KPRC_CMD(amplitude)

  bool continueAnalysis = false;  ///< starts from the end of the modal step before
  double timePeriod = 1.0;
  double incSize = 0.0;
  AmplitudeEnm amplitude = STEP;  ///< not the RAMP of other steps, which is refused
};
