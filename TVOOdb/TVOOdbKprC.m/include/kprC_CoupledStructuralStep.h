#pragma once

#include "kprC_IncrementalStep.h"
#include "kprC_Stabilization.h"

/// What the steps have in common that solve for displacements together with temperatures and what else flows. No class
/// of the database, as kprC_IncrementalStep.
///
/// A new step is not valid: the caller chooses the increments and, for automatic ones of a transient response, `deltmx`
/// or `cetol`.
class TVO_API kprC_CoupledStructuralStep : public kprC_IncrementalStep, public kprC_Stabilization {
 public:
  /// Numbers 145, those of the increments, 10, 90, 253 and 254.
  void AssertValid() const override;

  KPRC_CMD(deltmx)
  KPRC_CMD(cetol)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)

  NlgeomEnm nlgeom = OFF;
  ResponseEnm response = TRANSIENT;      ///< the usual one
  double deltmx = cls_NotGiven<double>;  ///< largest change of temperature in an increment
  double cetol = cls_NotGiven<double>;   ///< largest difference of creep strain increments
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;

 protected:
  ResponseEnm OwnResponse() const override { return response; }
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};

/// How creep is integrated where heat is coupled with electric currents.
class TVO_API kprC_CreepIntegration {
 public:
  enum CreepIntegrationEnm { IMPLICIT_EXPLICIT = 0, EXPLICIT = 1, CREEP_OFF = 2 };

  KPRC_CMD(creepIntegration)

  CreepIntegrationEnm creepIntegration = IMPLICIT_EXPLICIT;

 protected:
  ~kprC_CreepIntegration() = default;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_CreepIntegration::CreepIntegrationEnm>[] = {
    {"IMPLICIT_EXPLICIT", 0}, {"EXPLICIT", 1}, {"CREEP_OFF", 2}, {nullptr, 0}};
