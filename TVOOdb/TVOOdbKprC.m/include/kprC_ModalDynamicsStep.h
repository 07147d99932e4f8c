#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_CompositeDamping.h"
#include "kprC_DirectDamping.h"
#include "kprC_DirectDampingByFrequency.h"
#include "kprC_RayleighDamping.h"
#include "kprC_RayleighDampingByFrequency.h"

/// "Modal dynamics": the response in time, put together from the modes that a frequency step found.
///
/// A new step is not valid: the caller chooses `incSize`. Times are in the model's unit of time.
class TVO_API kprC_ModalDynamicsStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_ModalDynamicsStep)

 public:
  kprC_ModalDynamicsStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 6, 77, 145 and 314. The dampings are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "ModalDynamicsStep")
  KPRC_CMD(compositeDamping)
  KPRC_CMD(continueAnalysis)
  KPRC_CMD(incSize)
  KPRC_CMD(amplitude)
  KPRC_CMD(directDamping)
  KPRC_CMD(rayleighDamping)
  KPRC_CMD(directDampingByFrequency)
  KPRC_CMD(rayleighDampingByFrequency)

  /// Empty for none, as all dampings.
  cow_COW<kprC_CompositeDamping, cow_Virtual<kprC_CompositeDamping>> compositeDamping;
  bool continueAnalysis = false;  ///< starts from the end of the modal step before
  double timePeriod = 1.0;
  double incSize = 0.0;
  AmplitudeEnm amplitude = STEP;
  cow_COW<kprC_DirectDamping, cow_Virtual<kprC_DirectDamping>> directDamping;
  cow_COW<kprC_RayleighDamping, cow_Virtual<kprC_RayleighDamping>> rayleighDamping;
  cow_COW<kprC_DirectDampingByFrequency, cow_Virtual<kprC_DirectDampingByFrequency>> directDampingByFrequency;
  cow_COW<kprC_RayleighDampingByFrequency, cow_Virtual<kprC_RayleighDampingByFrequency>> rayleighDampingByFrequency;
};
