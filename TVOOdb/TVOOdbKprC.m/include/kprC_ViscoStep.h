#pragma once

#include "kprC_IncrementalStep.h"
#include "kprC_Stabilization.h"

/// "Visco": static equilibrium with creep, swelling and viscoelasticity in time.
///
/// A new step is not valid: the caller chooses the increments and, for automatic ones, `cetol`.
class TVO_API kprC_ViscoStep final : public kprC_IncrementalStep, public kprC_Stabilization {
  CLS_PERSISTENT(kprC, kprC_ViscoStep)

 public:
  enum IntegrationEnm { IMPLICIT_EXPLICIT = 0, EXPLICIT_ONLY = 1 };

  kprC_ViscoStep() = default;

  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Numbers 275, those of the increments, 34, 276, 274 and 253.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "ViscoStep")
  KPRC_CMD(integration)
  KPRC_CMD(cetol)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)
  KPRC_CMD(reformKernel)
  KPRC_CMD(solutionTechnique)

  NlgeomEnm nlgeom = OFF;
  IntegrationEnm integration = IMPLICIT_EXPLICIT;  ///< of creep
  double cetol = cls_NotGiven<double>;             ///< largest difference of creep strain increments
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  int reformKernel = 8;  ///< iterations between two kernel matrices; of use with quasi-Newton alone
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ViscoStep::IntegrationEnm>[] = {
    {"IMPLICIT_EXPLICIT", 0}, {"EXPLICIT_ONLY", 1}, {nullptr, 0}};
