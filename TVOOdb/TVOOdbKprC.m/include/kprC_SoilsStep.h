#pragma once

#include "kprC_IncrementalStep.h"
#include "kprC_Stabilization.h"

/// "Soils": flow of pore fluid through a deforming medium, in time or steady.
///
/// A new step is not valid: the caller chooses the increments and, for automatic ones, the tolerances that apply.
class TVO_API kprC_SoilsStep final : public kprC_IncrementalStep, public kprC_Stabilization {
  CLS_PERSISTENT(kprC, kprC_SoilsStep)

 public:
  enum class SoilsResponseEnm { CONSOLIDATION = 0, STEADY_STATE = 1 };

  kprC_SoilsStep() = default;

  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Numbers 275, those of the increments with 6 for a fixed one, 25, 26, 34, 276, 274, 253 and 254.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "SoilsStep")
  KPRC_CMD(end)
  KPRC_CMD(creepBehavior)
  KPRC_CMD(cetol)
  KPRC_CMD(utol)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)
  KPRC_CMD(reformKernel)
  KPRC_CMD(solutionTechnique)

  NlgeomEnm nlgeom = OFF;
  SoilsResponseEnm response = SoilsResponseEnm::CONSOLIDATION;
  double end = cls_NotGiven<double>;    ///< rate of change below which the state counts as steady and ends the step
  bool creepBehavior = true;            ///< as soils usually have
  double cetol = cls_NotGiven<double>;  ///< largest difference of creep strain increments
  double utol = cls_NotGiven<double>;   ///< largest change of pore pressure in an increment
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  int reformKernel = 8;  ///< iterations between two kernel matrices; of use with quasi-Newton alone
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;

 protected:
  /// A consolidation is transient.
  ResponseEnm OwnResponse() const override;
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }

 private:
  void AssertTolerances() const;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SoilsStep::SoilsResponseEnm>[] = {
    {"CONSOLIDATION", 0}, {"STEADY_STATE", 1}, {nullptr, 0}};
