#pragma once

#include "kprC_AnalysisStep.h"

/// "Static, General": equilibrium under loads that change with the step's time, without inertia.
///
/// A new step is not valid: the caller chooses `initialInc`. Times are in the model's unit of time.
class TVO_API kprC_StaticStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_StaticStep)

 public:
  enum StabilizationEnm { NONE = 0, DISSIPATED_ENERGY_FRACTION = 1, DAMPING_FACTOR = 2 };

  kprC_StaticStep() = default;

  bool IsAdiabatic() const override { return adiabatic; }
  double TimePeriod() const override { return timePeriod; }
  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  StabilizationEnm StabilizationMethod() const { return stabilizationMethod; }
  double StabilizationMagnitude() const { return stabilizationMagnitude; }
  void AssertValid() const override;

  static constexpr double MinimumDef(double first, double second) noexcept { return TypicalMinimumDef(first, second); }

  KPRC_NAMED_CMD(constructorCmd, "StaticStep")
  KPRC_NAMED_CMD(staticCmd, "static")
  KPRC_CMD(reformKernel)
  KPRC_CMD(solutionTechnique)
  KPRC_CMD(adiabatic)
  KPRC_CMD(stabilization)
  KPRC_CMD(stabilizationMethod)
  KPRC_CMD(stabilizationMagnitude)
  KPRC_CMD(timeIncrementationMethod)
  KPRC_CMD(maxNumInc)
  KPRC_CMD(initialInc)
  KPRC_CMD(minInc)
  KPRC_CMD(maxInc)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)
  KPRC_CMD(noStop)
  KPRC_CMD(fullyPlastic)
  KPRC_CMD(useLongTermSolution)
  KPRC_CMD(continueDampingFactors)
  KPRC_CMD(adaptiveDampingRatio)

  NlgeomEnm nlgeom = OFF;
  bool adiabatic = false;
  double timePeriod = 1.0;
  StabilizationEnm stabilizationMethod = NONE;
  double stabilizationMagnitude = cls_NotGiven<double>;
  TimeIncrementationMethodEnm timeIncrementationMethod = AUTOMATIC;
  int maxNumInc = 100;
  double initialInc = 0.0;
  double minInc = 0.0;  ///< of use with automatic increments alone, as maxInc
  double maxInc = 0.0;
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  bool noStop = false;
  cow_String fullyPlastic;  ///< name of the set whose yielding ends the step
  bool useLongTermSolution = false;
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;
  int reformKernel = 8;  ///< iterations between two kernel matrices; of use with quasi-Newton alone
  bool continueDampingFactors = false;
  double adaptiveDampingRatio = cls_NotGiven<double>;

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_StaticStep::StabilizationEnm>[] = {
    {"NONE", 0}, {"DISSIPATED_ENERGY_FRACTION", 1}, {"DAMPING_FACTOR", 2}, {nullptr, 0}};
