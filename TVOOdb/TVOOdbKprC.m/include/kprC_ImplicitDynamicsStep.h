#pragma once

#include "kprC_IncrementalStep.h"

/// "Dynamic, Implicit": motion under loads that change in time, integrated implicitly.
///
/// A new step is not valid: the caller chooses the increments.
class TVO_API kprC_ImplicitDynamicsStep final : public kprC_IncrementalStep {
  CLS_PERSISTENT(kprC, kprC_ImplicitDynamicsStep)

 public:
  enum class ApplicationTypeEnum { DEFAULT = 0, TRANSIENT_FIDELITY = 1, MODERATE_DISSIPATION = 2, QUASI_STATIC = 3 };
  enum class HafTolMethodEnum { DEFAULT = 0, VALUE = 1, SCALE = 2 };
  enum class InitialConditionsEnum { DEFAULT = 0, ON = 1, OFF = 2 };

  kprC_ImplicitDynamicsStep() = default;

  bool IsAdiabatic() const override { return adiabatic; }
  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Numbers 145, those of the increments, 41, 94, 276 and 274.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "ImplicitDynamicsStep")
  KPRC_CMD(adiabatic)
  KPRC_CMD(haftol)
  KPRC_CMD(nohaf)
  KPRC_CMD(amplitude)
  KPRC_CMD(extrapolation)
  KPRC_CMD(alpha)
  KPRC_CMD(noStop)
  KPRC_CMD(reformKernel)
  KPRC_CMD(solutionTechnique)
  KPRC_CMD(applicationType)
  KPRC_CMD(hafTolMethod)
  KPRC_CMD(isDefaultMaxInc)
  KPRC_CMD(halfIncScaleFactor)
  KPRC_CMD(initialCondition)

  NlgeomEnm nlgeom = OFF;
  bool adiabatic = false;
  double haftol = cls_NotGiven<double>;  ///< largest residual at half an increment; of use with HafTolMethodEnum::VALUE
  bool nohaf = false;                    ///< leaves that residual out
  AmplitudeEnm amplitude = RAMP;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::LINEAR;
  double alpha = cls_NotGiven<double>;  ///< numerical damping, -0.5 to 0; not given: the application's
  bool noStop = false;
  int reformKernel = 8;  ///< iterations between two kernel matrices; of use with quasi-Newton alone
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;
  ApplicationTypeEnum applicationType = ApplicationTypeEnum::DEFAULT;
  HafTolMethodEnum hafTolMethod = HafTolMethodEnum::DEFAULT;
  bool isDefaultMaxInc = false;  ///< the solver chooses the largest increment; maxInc is not looked at
  double halfIncScaleFactor = cls_NotGiven<double>;  ///< of that residual; of use with HafTolMethodEnum::SCALE
  InitialConditionsEnum initialCondition =
      InitialConditionsEnum::DEFAULT;  ///< whether initial accelerations are calculated

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ImplicitDynamicsStep::ApplicationTypeEnum>[] = {
    {"DEFAULT", 0}, {"TRANSIENT_FIDELITY", 1}, {"MODERATE_DISSIPATION", 2}, {"QUASI_STATIC", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ImplicitDynamicsStep::HafTolMethodEnum>[] = {
    {"DEFAULT", 0}, {"VALUE", 1}, {"SCALE", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ImplicitDynamicsStep::InitialConditionsEnum>[] = {
    {"DEFAULT", 0}, {"ON", 1}, {"OFF", 2}, {nullptr, 0}};
