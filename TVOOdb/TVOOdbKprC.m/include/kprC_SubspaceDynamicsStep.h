#pragma once

#include "kprC_AnalysisStep.h"

/// "Dynamic, Subspace": nonlinear motion in the space of modes that a frequency step found.
///
/// A new step is not valid: the caller chooses `incSize`.
class TVO_API kprC_SubspaceDynamicsStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_SubspaceDynamicsStep)

 public:
  /// How a caller says the number of modes.
  enum SubspaceAllEnm { ALL = 0, SPECIFIED_MODES = 1 };

  kprC_SubspaceDynamicsStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 145, 47, 77 and 6.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "SubspaceDynamicsStep")
  KPRC_CMD(vectors)
  KPRC_CMD(incSize)
  KPRC_CMD(maxNumInc)
  KPRC_CMD(amplitude)

  NlgeomEnm nlgeom = OFF;
  int vectors = cls_NotGiven<int>;  ///< number of modes; not given: all
  double timePeriod = 1.0;
  double incSize = 0.0;  ///< the increment, the same in all of the step
  int maxNumInc = 100;
  AmplitudeEnm amplitude = RAMP;

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SubspaceDynamicsStep::SubspaceAllEnm>[] = {
    {"ALL", 0}, {"SPECIFIED_MODES", 1}, {nullptr, 0}};
