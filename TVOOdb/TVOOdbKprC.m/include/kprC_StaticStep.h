#pragma once

#include "kprC_IncrementalStep.h"
#include "kprC_Stabilization.h"

/// "Static, General": equilibrium under loads that change with the step's time, without inertia.
///
/// A new step is not valid: the caller chooses the increments.
class TVO_API kprC_StaticStep final : public kprC_IncrementalStep, public kprC_Stabilization {
  CLS_PERSISTENT(kprC, kprC_StaticStep)

 public:
  kprC_StaticStep() = default;

  bool IsAdiabatic() const override { return adiabatic; }
  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Numbers 275, those of the increments, 276, 274, 253 and 254.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "StaticStep")
  KPRC_NAMED_CMD(staticCmd, "static")
  KPRC_CMD(reformKernel)
  KPRC_CMD(solutionTechnique)
  KPRC_CMD(adiabatic)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)
  KPRC_CMD(noStop)
  KPRC_CMD(fullyPlastic)
  KPRC_CMD(useLongTermSolution)

  NlgeomEnm nlgeom = OFF;
  bool adiabatic = false;
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  bool noStop = false;
  cow_String fullyPlastic;  ///< name of the set whose yielding ends the step
  bool useLongTermSolution = false;
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;
  int reformKernel = 8;  ///< iterations between two kernel matrices; of use with quasi-Newton alone

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};
