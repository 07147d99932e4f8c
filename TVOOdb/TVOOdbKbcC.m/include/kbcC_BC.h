#pragma once

#include "dtmC_DatumRef.h"
#include "kbcC_Enums.h"
#include "kbcC_assert.h"
#include "kprC_PropagatingContainer.h"
#include "kprC_Propagator.h"
#include "kprC_StepDependent.h"

class kbcC_BC;
class kbcC_BCPropagator;

/// What a boundary condition prescribes in one step; each kind adds its values.
class TVO_API kbcC_BCState : public kprC_AmplitudeState {
  CLS_ABSTRACT(kbcC, kbcC_BCState)

 public:
  /// False for the initial step and for the procedures outside time.
  bool UseAmplitude(unsigned int procedure) const override;
  /// True for the procedures that work with real and imaginary parts directly.
  bool UseComplex(unsigned int procedure) const override;
  /// False for the extraction of frequencies, which knows only whether something is held.
  bool UseMagnitude(unsigned int procedure) const override;

  KPRC_NAMED_CMD(bcStateCmd, "boundaryConditionStates")
  KPRC_NAMED_CMD(pythonTypeName, "BoundaryConditionState")
};

CLS_INSTANCE(kbcC, kprC_PropagatingState<kbcC_BCState>);

/// How boundary conditions differ from the other step-dependent families.
struct TVO_API kbcC_Family {
  using Object = kbcC_BC;
  using State = kbcC_BCState;
  using Propagator = kbcC_BCPropagator;

  static kprC_StepRules const& Rules();
  static void Assert(bool condition, int error) { kbcC_Assert(condition, error); }
  /// Refuses a step in which the object has nothing in force, in words that name its status there.
  [[noreturn]] static void RefuseStep(mdl_PropagationStatusEnm status, cow_String const& step);
  /// Under which scripts know the conditions of a model, and the menus of a step of that procedure.
  static char const* RepositoryName() noexcept;
  static cow_List<kprC_OfferedMenu> OfferedTypes(int procedure);
};

extern template class kprC_StepDependent<kbcC_Family>;
extern template class kprC_Propagator<kbcC_Family>;

/// A boundary condition of a model: one named object with a status and a state in each step.
class TVO_API kbcC_BC : public kprC_StepDependent<kbcC_Family> {
  CLS_ABSTRACT(kbcC, kbcC_BC)

 public:
  /// What the condition prescribes. Not the menu that offers it: several categories share one.
  enum CategoryEnm {
    MECHANICAL = 0,
    THERMAL = 1,
    FLUID = 2,
    ELECTRICAL = 3,
    MASS_DIFFUSION = 4,
    ACOUSTIC = 5,
    ELECTROCHEMICAL = 6,
    OTHER_BC = 7,
  };
  /// How the values are given over the region.
  enum DistribTypeEnum { UNIFORM = 0, USER_DEFINED = 1, FIELD = 2, DISCRETE_FIELD = 3 };

  virtual CategoryEnm Category() const = 0;
  /// Whether the object may stand in a flow step: not with a coordinate system of its own.
  virtual bool AllowedInFlow() const { return csys.IsNullRef(); }
  /// True for the extraction of frequencies, whose base names what is held.
  virtual bool UseBasename(unsigned int procedure) const;

  /// The region if it is of the type that is asked for.
  cls_xoList<rgnC_Region> Regions(rgnC_RegionType type) const override;
  /// Whether a field gives the distribution; `name` receives its name, or is emptied.
  bool UsesField(cow_String& name) const;

  void AssertValid() const override;
  using kprC_StepDependent::ValidInStep;
  bool ValidInStep(int procedure, bool flag, bool relax, int firstProcedure) const override;

  KPRC_NAMED_CMD(bcCmd, "boundaryCondition")
  KPRC_NAMED_CMD(bcRepositoryCmd, "boundaryConditions")
  KPRC_NAMED_CMD(copyConstructorCmd, "BoundaryCondition")
  KPRC_NAMED_CMD(upgradeBCMDBCmd, "_upgradeBcMdb")

  rgnC_Region region;
  dtmC_DatumRef csys;
  cow_String fieldName;
  DistribTypeEnum distribution = UNIFORM;

 protected:
  void AssertDefinition() const override;
  void AssertCreateStep(int procedure) const override;
  /// Last test of AssertValid: what a kind of condition refuses besides.
  virtual void AssertKind() const {}
  /// A condition that holds what is there cannot go to where nothing is there yet.
  void AssertMove(Quad const& from, Quad const& to) const override;
  /// Whether the condition holds its region at what it finds there; true for some kinds with a "fixed" flag.
  virtual bool IsHeldInPlace() const { return false; }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_BC::CategoryEnm>[] = {
    {"MECHANICAL", 0}, {"THERMAL", 1},         {"FLUID", 2},    {"ELECTRICAL", 3}, {"MASS_DIFFUSION", 4},
    {"ACOUSTIC", 5},   {"ELECTROCHEMICAL", 6}, {"OTHER_BC", 7}, {nullptr, 0}};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_BC::DistribTypeEnum>[] = {
    {"UNIFORM", 0}, {"USER_DEFINED", 1}, {"FIELD", 2}, {"DISCRETE_FIELD", 3}, {nullptr, 0}};

CLS_INSTANCE(kbcC, kprC_PropagatingContainer<kbcC_BC>);
CLS_INSTANCE(kbcC, mdl_ExtensionWrapper<kprC_PropagatingContainer<kbcC_BC>>);
extern template class kprC_PropagatingContainer<kbcC_BC>;

/// Derives every step's status and effective state of a boundary condition. Constructing one walks the steps.
class TVO_API kbcC_BCPropagator final : public kprC_Propagator<kbcC_Family> {
 public:
  kbcC_BCPropagator(kbcC_BC const& owner, Quads const& quads) : kprC_Propagator(owner, quads) { Run(); }

  bool CheckFrequency(int procedure) override;

 protected:
  /// A perturbation starts from zero; what is prescribed is built into the modes of modal steps.
  void Perturb(int procedure) override;
};
