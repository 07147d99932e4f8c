#pragma once

#include "cls_Persistent.h"
#include "cow_COW.h"
#include "cow_String.h"
#include "kprC_Procedures.h"
#include "omu_EnumCodec.h"

/// Declares `<name>Cmd()`, a function that gives the name under which scripts know an attribute or a command.
#define KPRC_CMD(name) \
  static constexpr char const* name##Cmd() noexcept { return #name; }
/// As KPRC_CMD, for a function whose literal differs from its own name.
#define KPRC_NAMED_CMD(function, literal) \
  static constexpr char const* function() noexcept { return literal; }

/// A stage of the analysis: one procedure with its parameters.
///
/// What all steps of a class answer alike stands in the class's row of kprC_StepAnswerRows and is looked up by
/// DynTypeId in constant time; a class adds code only for what depends on its fields.
///
/// Enumerations that share a name of a value with another one are scoped: MatrixSolverEnm, MatrixStorageEnm,
/// ExtrapolationEnm, ConvertSDIEnm, DefaultEnm. The others are not.
class TVO_API kprC_Step : public cls_Persistent {
  CLS_ABSTRACT(kprC, kprC_Step)

 public:
  enum ResponseEnm { STEADY_STATE = 0, TRANSIENT = 1, NOT_APPLICABLE = 2 };
  enum NlgeomEnm { OFF = 0, ON = 1, NOT_AVAILABLE = 2, ALWAYS_OFF = 3 };
  enum SolutionTechniqueEnm { FULL_NEWTON = 0, SEPARATED = 1, QUASI_NEWTON = 2, LCP_CONTACT = 3 };
  enum TimeIncrementationMethodEnm { AUTOMATIC = 0, FIXED = 1 };
  enum class MatrixSolverEnm {
    DIRECT = 0,
    ITERATIVE = 1,
    DDM_ITERATIVE = 2,
    DIRECT_SYMMETRIC = 3,
    DIRECT_UNSYMMETRIC = 4,
    SOLVER_DEFAULT = 5,
  };
  enum class MatrixStorageEnm { SOLVER_DEFAULT = 0, SYMMETRIC = 1, UNSYMMETRIC = 2 };
  enum EigensolverEnm : int { SUBSPACE = 0, LANCZOS = 1, AMS = 2 };
  enum class ExtrapolationEnm { LINEAR = 0, PARABOLIC = 1, NONE = 2, VELOCITY_PARABOLIC = 3, DEFAULT = 4 };
  enum AmplitudeEnm { STEP = 0, RAMP = 1 };
  enum class ConvertSDIEnm { CONVERT_SDI_OFF = 0, CONVERT_SDI_ON = 1, PROPAGATED = 2 };
  enum class DefaultEnm { DEFAULT = 0 };

  /// Stands for ALL among the numbers of eigenvalues.
  static constexpr int allEigenvalues = cls_NotGiven<int>;

  /// Whether heat stays where it arises.
  virtual bool IsAdiabatic() const { return false; }
  /// Whether the step may have load cases, and domains of the adaptive mesh.
  virtual bool AllowLoadCases() const { return Answers().allowLoadCases; }
  virtual bool AllowAdaptiveMeshDomains() const { return Answers().allowAdaptiveMeshDomains; }
  /// The type identifier of the procedure; 1 for the initial step.
  virtual unsigned int ProcedureType() const { return DynTypeId(); }
  /// Whether the procedure solves for no displacements.
  virtual bool Nonmechanical() const { return Answers().nonmechanical; }
  /// Whether the step is one of an explicit analysis.
  virtual bool Explicit() const { return Answers().isExplicit; }
  /// Steady or transient, of the procedures that tell them apart.
  virtual ResponseEnm Response() const;
  /// Length of the step in the model's unit of time; 0.0 for a class without one. Linear perturbations outside time
  /// have a period, too, which says nothing.
  virtual double TimePeriod() const { return 0.0; }
  /// Whether the step takes changes of the geometry into account; kprC_StepContainer::Nlgeom() carries that over steps.
  virtual NlgeomEnm Nlgeom() const;
  /// Whether the step is a linear perturbation about the state that the last general step left. Constant time.
  virtual bool Perturbation() const { return Answers().perturbation; }
  /// Raises nex_PrimException<atr_String, 1> for the first parameter that is out of its range. The objects in the step
  /// are asked by themselves, all those of an attribute by its cls_Attribute::AssertPartsValid().
  virtual void AssertValid() const {}
  /// Whether the step is one of an analysis of flow.
  virtual bool Flow() const { return DynTypeId() == kprC_Procedure::Flow; }
  /// Whether the step's results are kept in the form that linear dynamics works on.
  virtual bool SimBased() const { return false; }
  /// Takes the step out of the analysis, or back in.
  virtual void Suppress() = 0;
  virtual void Resume() = 0;

  /// Whether the procedure of that identifier is a linear perturbation. False for an identifier that is no procedure.
  static bool Perturbation(unsigned int id);
  /// The smallest increment that a step proposes.
  static constexpr double TypicalMinimumDef(double, double second) noexcept { return second * 1e-5; }
  static constexpr double TimePeriodBasedMinimumDef(double timePeriod) noexcept { return timePeriod * 1e-5; }

  KPRC_NAMED_CMD(initialCmd, "Initial")
  KPRC_CMD(step)
  KPRC_NAMED_CMD(stepRepositoryCmd, "steps")
  KPRC_CMD(name)
  KPRC_NAMED_CMD(copyCmd, "Step")
  KPRC_NAMED_CMD(setParametersCmd, "setValues")
  KPRC_NAMED_CMD(solverInputCmd, "_solverInput")
  KPRC_CMD(boundaryCondition)
  KPRC_CMD(description)
  KPRC_CMD(resume)
  KPRC_NAMED_CMD(generalStepsCmd, "_generalSteps")
  KPRC_NAMED_CMD(perturbationStepsCmd, "_perturbationSteps")
  KPRC_NAMED_CMD(generalReplacementStepsCmd, "_generalReplacementSteps")
  KPRC_NAMED_CMD(perturbationReplacementStepsCmd, "_perturbationReplacementSteps")
  KPRC_CMD(maintainAttributes)
  KPRC_CMD(procedureType)
  KPRC_CMD(allowAdaptiveMeshDomains)
  KPRC_CMD(suppress)
  KPRC_CMD(suppressed)
  KPRC_NAMED_CMD(NLGEOM_ON, "ON")
  KPRC_NAMED_CMD(NLGEOM_OFF, "OFF")
  KPRC_NAMED_CMD(NLGEOM_NA, "N/A")

  cow_String solverInput;  ///< passed on to the solver unchanged
  cow_String description;
  bool suppress = false;  ///< left out of the analysis
  int stepId = 0;

 protected:
  /// What Response and Nlgeom give where the class's row leaves them to the step's own fields.
  virtual ResponseEnm OwnResponse() const { return NOT_APPLICABLE; }
  virtual NlgeomEnm OwnNlgeom() const { return OFF; }

 private:
  kprC_StepAnswers const& Answers() const;
};

/// Holder of a step; copies share the step until one side edits it.
using kprC_StepHolder = cow_COW<kprC_Step, cow_Virtual<kprC_Step>>;

/// The step that every model starts with. It has no parameters and is never suppressed.
class TVO_API kprC_InitialStep final : public kprC_Step {
  CLS_PERSISTENT(kprC, kprC_InitialStep)

 public:
  /// ProcedureType() of the initial step, which is the type of no procedure.
  static constexpr unsigned int procedureTypeOfInitialStep = 1;

  kprC_InitialStep() = default;

  unsigned int ProcedureType() const override { return procedureTypeOfInitialStep; }
  /// Always raises number 256.
  void Suppress() override;
  void Resume() override {}

  KPRC_NAMED_CMD(constructorCmd, "InitialStep")
  KPRC_CMD(interactionProperty)
  KPRC_CMD(connector)
  KPRC_CMD(constraint)
  KPRC_CMD(initialCondition)
};

/// The initial step as users see it. Its name in the list of steps is kprC_Step::initialCmd().
TVO_API char const* kprC_InitialStepName();

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::ResponseEnm>[] = {
    {"STEADY_STATE", 0}, {"TRANSIENT", 1}, {"NOT_APPLICABLE", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::NlgeomEnm>[] = {
    {"OFF", 0}, {"ON", 1}, {"NOT_AVAILABLE", 2}, {"ALWAYS_OFF", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::SolutionTechniqueEnm>[] = {
    {"FULL_NEWTON", 0}, {"SEPARATED", 1}, {"QUASI_NEWTON", 2}, {"LCP_CONTACT", 3}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::TimeIncrementationMethodEnm>[] = {
    {"AUTOMATIC", 0}, {"FIXED", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::MatrixSolverEnm>[] = {
    {"DIRECT", 0},           {"ITERATIVE", 1},          {"DDM_ITERATIVE", 2},
    {"DIRECT_SYMMETRIC", 3}, {"DIRECT_UNSYMMETRIC", 4}, {"SOLVER_DEFAULT", 5},
    {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::MatrixStorageEnm>[] = {
    {"SOLVER_DEFAULT", 0}, {"SYMMETRIC", 1}, {"UNSYMMETRIC", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::EigensolverEnm>[] = {
    {"SUBSPACE", 0}, {"LANCZOS", 1}, {"AMS", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::ExtrapolationEnm>[] = {
    {"LINEAR", 0}, {"PARABOLIC", 1}, {"NONE", 2}, {"VELOCITY_PARABOLIC", 3}, {"DEFAULT", 4}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::AmplitudeEnm>[] = {{"STEP", 0}, {"RAMP", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::ConvertSDIEnm>[] = {
    {"CONVERT_SDI_OFF", 0}, {"CONVERT_SDI_ON", 1}, {"PROPAGATED", 2}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Step::DefaultEnm>[] = {{"DEFAULT", 0}, {nullptr, 0}};
