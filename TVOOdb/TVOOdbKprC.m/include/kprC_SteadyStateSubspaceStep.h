#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_ComplexSystem.h"
#include "kprC_FrequencySweep.h"
#include "kprC_SteadyStateSubspaceFrequency.h"

/// "Steady-state dynamics, Subspace": the response to harmonic loads, from the equations of the whole model projected
/// on the modes that a frequency step found.
///
/// A new step is not valid: the caller adds a range of frequencies.
class TVO_API kprC_SteadyStateSubspaceStep final : public kprC_AnalysisStep,
                                                   public kprC_FrequencySweep<kprC_SteadyStateSubspaceFrequency>,
                                                   public kprC_ComplexSystem {
  CLS_PERSISTENT(kprC, kprC_SteadyStateSubspaceStep)

 public:
  /// How often the equations are projected anew.
  enum ProjectionEnm { ALL_FREQUENCIES = 0, CONSTANT = 1, EIGENFREQUENCY = 2, PROPERTY_CHANGE = 3, RANGE = 4 };

  kprC_SteadyStateSubspaceStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 45, 162 and 145. The ranges are asked by themselves.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "SteadyStateSubspaceStep")
  KPRC_CMD(projection)
  KPRC_CMD(maxDampingChange)
  KPRC_CMD(maxStiffnessChange)
  KPRC_CMD(subdivideUsingEigenfrequencies)

  ProjectionEnm projection = ALL_FREQUENCIES;
  double timePeriod = 1.0;
  /// Share by which the damping and the stiffness may change before a new projection; 0.1 is usual.
  double maxDampingChange = 0.1;
  double maxStiffnessChange = 0.1;
  bool subdivideUsingEigenfrequencies = true;  ///< ends parts of the ranges at the eigenfrequencies; usual
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SteadyStateSubspaceStep::ProjectionEnm>[] = {
    {"ALL_FREQUENCIES", 0}, {"CONSTANT", 1}, {"EIGENFREQUENCY", 2}, {"PROPERTY_CHANGE", 3}, {"RANGE", 4}, {nullptr, 0}};
