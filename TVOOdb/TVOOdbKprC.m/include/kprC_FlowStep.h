#pragma once

#include "kprC_AnalysisStep.h"
#include "kprC_FlowEnums.h"

/// "Flow": incompressible flow in time, in an analysis of its own. A new step is valid.
class TVO_API kprC_FlowStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_FlowStep)

 public:
  enum IncrementationEnm { FIXED_TIME = 0, FIXED_CFL = 1 };
  enum PressureSolverEnm { CG = 0, BCGS = 1, FGMRES = 2 };
  enum PressureTypeEnm { SSOR = 0, AMG = 1 };
  enum SmootherTypeEnm { ICC = 0, CHEBYCHEV = 1 };
  enum SolverTypeEnm { FLEXIBLE = 0, GENERALIZED = 1 };
  enum WeightingFactorEnm { TRAPEZOID = 0, GALERKIN = 1, BACKWARD_EULER = 2 };

  kprC_FlowStep() = default;

  double TimePeriod() const override { return timePeriod; }
  /// Numbers 77, 278, 78, 279 to 281 of increments by the CFL number, 282, 283 to 288 and 290 to 292 of the solvers,
  /// 293 to 296.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "FlowStep")
  KPRC_CMD(energyEquation)
  KPRC_CMD(incrementation)
  KPRC_CMD(initialInc)
  KPRC_CMD(divergenceTol)
  KPRC_CMD(maximumCFL)
  KPRC_CMD(incAdjustmentFreq)
  KPRC_CMD(stepGrowthFactor)
  KPRC_CMD(viscousFactor)
  KPRC_CMD(boundaryFactor)
  KPRC_CMD(momOutputDiagnostics)
  KPRC_CMD(momOutputConvergence)
  KPRC_CMD(momIterationLimit)
  KPRC_CMD(momCheckingFreq)
  KPRC_CMD(momConvergenceLimit)
  KPRC_CMD(pressureType)
  KPRC_CMD(pressOutputDiagnostics)
  KPRC_CMD(pressOutputConvergence)
  KPRC_CMD(pressIterationLimit)
  KPRC_CMD(pressCheckingFreq)
  KPRC_CMD(pressConvergenceLimit)
  KPRC_CMD(transOutputDiagnostics)
  KPRC_CMD(transOutputConvergence)
  KPRC_CMD(transIterationLimit)
  KPRC_CMD(transCheckingFreq)
  KPRC_CMD(transConvergenceLimit)
  KPRC_CMD(turbulenceModel)
  KPRC_CMD(turbPrandtlNumber)
  KPRC_CMD(turbCb1)
  KPRC_CMD(turbCb2)
  KPRC_CMD(turbCv1)
  KPRC_CMD(turbCv2)
  KPRC_CMD(turbCw1)
  KPRC_CMD(turbCw2)
  KPRC_CMD(turbCw3)
  KPRC_CMD(turbSigma)
  KPRC_CMD(turbKappa)
  KPRC_CMD(turbCmu)
  KPRC_CMD(turbCeps1)
  KPRC_CMD(turbCeps2t)
  KPRC_CMD(turbCeps3)
  KPRC_CMD(turbSigma_k)
  KPRC_CMD(turbSigma_eps)
  KPRC_CMD(turbSigma_rho)
  KPRC_CMD(turbBeta)
  KPRC_CMD(turbLambda0)
  KPRC_CMD(pressSolverType)
  KPRC_CMD(pressSmootherType)
  KPRC_CMD(pressPreSweeps)
  KPRC_CMD(pressPostSweeps)
  KPRC_CMD(advectionFactor)

  double timePeriod = 1.0;
  kprC_EnergyEquationEnm energyEquation = kprC_EnergyEquationEnm::ENERGY_NONE;
  // Increments, tolerances and limits of the solvers as usual in practice, not zero.
  IncrementationEnm incrementation = FIXED_CFL;
  /// The increment itself with FIXED_TIME. Not the 0.0 of other steps: the increments are adjusted to the flow from the
  /// first one on, so any small one will do, and a new step is valid.
  double initialInc = 0.01;
  double divergenceTol = 1e-10;                  ///< largest divergence of the velocity
  double maximumCFL = 0.45;                      ///< of use with FIXED_CFL alone, as the next two
  int incAdjustmentFreq = 1;                     ///< increments between two adjustments of the increment
  double stepGrowthFactor = 0.025;               ///< largest growth of an increment, as a fraction
  WeightingFactorEnm viscousFactor = TRAPEZOID;  ///< of the viscous term in time, as the other two
  WeightingFactorEnm boundaryFactor = TRAPEZOID;
  // The iterative solvers of the momentum, pressure and transport equations.
  bool momOutputDiagnostics = false;
  bool momOutputConvergence = false;
  int momIterationLimit = 50;
  int momCheckingFreq = 2;
  double momConvergenceLimit = 1e-5;
  PressureTypeEnm pressureType = AMG;  ///< the preconditioner
  bool pressOutputDiagnostics = false;
  bool pressOutputConvergence = false;
  int pressIterationLimit = 250;
  int pressCheckingFreq = 2;
  double pressConvergenceLimit = 1e-5;
  bool transOutputDiagnostics = false;
  bool transOutputConvergence = false;
  int transIterationLimit = 50;
  int transCheckingFreq = 2;
  double transConvergenceLimit = 1e-5;
  kprC_TurbulenceModelEnm turbulenceModel = kprC_TurbulenceModelEnm::TURB_NONE;
  double turbPrandtlNumber = 0.85;  ///< as usual near walls
  // The constants as published with the models: from Cb1 those of SPALART, from Cmu on those of KEPS_RNG.
  double turbCb1 = 0.1355;
  double turbCb2 = 0.622;
  double turbCv1 = 7.1;
  double turbCv2 = 5.0;
  double turbCw1 = 3.2391;
  double turbCw2 = 0.3;
  double turbCw3 = 2.0;
  double turbSigma = 2.0 / 3.0;
  double turbKappa = 0.41;
  double turbCmu = 0.085;
  double turbCeps1 = 1.42;
  double turbCeps2t = 1.68;
  double turbCeps3 = 0.0;  ///< of buoyancy
  double turbSigma_k = 0.7179;
  double turbSigma_eps = 0.7179;
  double turbSigma_rho = 0.9;  ///< of buoyancy
  double turbBeta = 0.012;
  double turbLambda0 = 4.38;
  PressureSolverEnm pressSolverType = CG;
  SmootherTypeEnm pressSmootherType = ICC;  ///< of the multigrid levels
  int pressPreSweeps = 2;                   ///< of the smoother, 1 to 4; 2 are usual, before and after
  int pressPostSweeps = 2;
  WeightingFactorEnm advectionFactor = TRAPEZOID;

 private:
  void AssertEquations() const;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FlowStep::IncrementationEnm>[] = {
    {"FIXED_TIME", 0}, {"FIXED_CFL", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FlowStep::PressureSolverEnm>[] = {
    {"CG", 0}, {"BCGS", 1}, {"FGMRES", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FlowStep::PressureTypeEnm>[] = {{"SSOR", 0}, {"AMG", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FlowStep::SmootherTypeEnm>[] = {
    {"ICC", 0}, {"CHEBYCHEV", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FlowStep::SolverTypeEnm>[] = {
    {"FLEXIBLE", 0}, {"GENERALIZED", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_FlowStep::WeightingFactorEnm>[] = {
    {"TRAPEZOID", 0}, {"GALERKIN", 1}, {"BACKWARD_EULER", 2}, {nullptr, 0}};
