#pragma once

#include <optional>

#include "kloC_Enums.h"
#include "kloC_assert.h"
#include "kprC_PropagatingContainer.h"
#include "kprC_Propagator.h"
#include "kprC_StepDependent.h"

class kloC_Load;
class kloC_LoadPropagator;

/// What a load applies in one step; each kind adds its values.
class TVO_API kloC_LoadState : public kprC_AmplitudeState {
  CLS_ABSTRACT(kloC, kloC_LoadState)

 public:
  /// True for the procedures that work with real and imaginary parts directly.
  bool UseComplex(unsigned int procedure) const override;

  KPRC_NAMED_CMD(loadStateCmd, "loadStates")
  KPRC_NAMED_CMD(pythonTypeName, "LoadState")

 private:
  // No step takes a load's values to zero or asks whether all are released: a perturbation builds in what is there.
  using kprC_AmplitudeState::IsConditionModified;
  using kprC_AmplitudeState::UseMagnitude;
  using kprC_AmplitudeState::Zero;
};

CLS_INSTANCE(kloC, kprC_PropagatingState<kloC_LoadState>);

/// How loads differ from the other step-dependent families.
struct TVO_API kloC_Family {
  using Object = kloC_Load;
  using State = kloC_LoadState;
  using Propagator = kloC_LoadPropagator;

  static kprC_StepRules const& Rules();
  static void Assert(bool condition, int error) { kloC_Assert(condition, error); }
  /// Refuses a step in which the load has nothing in force.
  [[noreturn]] static void RefuseStep(mdl_PropagationStatusEnm, cow_String const&) { kloC_Refuse(32); }
  /// Under which scripts know the loads of a model, and the menus of a step of that procedure.
  static char const* RepositoryName() noexcept;
  static cow_List<kprC_OfferedMenu> OfferedTypes(int procedure);
};

extern template class kprC_StepDependent<kloC_Family>;
extern template class kprC_Propagator<kloC_Family>;

/// A load of a model: one named object with a status and a state in each step.
class TVO_API kloC_Load : public kprC_StepDependent<kloC_Family> {
  CLS_ABSTRACT(kloC, kloC_Load)

 public:
  /// The menu that offers the load.
  enum CategoryEnm {
    MECHANICAL = 0,
    THERMAL = 1,
    FLUID = 2,
    ELECTRICAL = 3,
    MASS_DIFFUSION = 4,
    ACOUSTIC = 5,
    ELECTROCHEMICAL = 6,
    OTHER_LOAD = 7,
  };

  virtual CategoryEnm Category() const = 0;
  /// How the magnitude is given over the region; nothing for a kind that has no choice.
  virtual std::optional<kloC_DistributionEnm> Distribution() const { return std::nullopt; }
  /// Whether a field gives the distribution; `field` receives its name, or is emptied.
  virtual bool UsesField(cow_String& field) const;
  /// The region if it is of the type that is asked for.
  cls_xoList<rgnC_Region> Regions(rgnC_RegionType type) const override;

  using kprC_StepDependent::ValidInStep;
  bool ValidInStep(int procedure, bool flag, bool relax, int firstProcedure) const override;
  /// A load stands where a menu offers it and nowhere else.
  bool ValidInPerturbationStep(int, bool) const override { return false; }

  void AssertValid() const override;
  /// The same for a load whose magnitude is yet to come: without the test of the magnitude and what the kind of load
  /// refuses beyond its states.
  virtual void AssertValidAnyMagnitude() const;
  /// Refuses what a model in that space does not know. Asked by whoever knows the model; a suppressed load passes.
  void AssertValidInSpace(kloC_SpaceEnm space) const;

  KPRC_NAMED_CMD(loadCmd, "load")
  KPRC_NAMED_CMD(loadRepositoryCmd, "loads")
  KPRC_NAMED_CMD(loadStateCmd, State::loadStateCmd())
  KPRC_NAMED_CMD(copyConstructorCmd, "BoundaryCondition")  // scripts know the copies of both families by one name
  KPRC_NAMED_CMD(upgradeLoadMDBCmd, "_upgradeLoadMdb")
  KPRC_NAMED_CMD(upgradeOperationCmd, "operation")
  KPRC_CMD(type)
  KPRC_CMD(field)

  rgnC_Region region;
  cow_String fieldName;

 protected:
  /// What a kind of load refuses besides; a suppressed load is not asked.
  virtual void AssertKind() const {}
  /// What it refuses in that space; a suppressed load is not asked.
  virtual void AssertInSpace(kloC_SpaceEnm) const {}
  /// Whether the state gives the load a magnitude, or its kind needs none.
  virtual bool HasMagnitude(State const&, int) const { return true; }

  void AssertDefinition() const override;
  void AssertCreateStep(int procedure) const override;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_Load::CategoryEnm>[] = {
    {"MECHANICAL", 0}, {"THERMAL", 1},         {"FLUID", 2},      {"ELECTRICAL", 3}, {"MASS_DIFFUSION", 4},
    {"ACOUSTIC", 5},   {"ELECTROCHEMICAL", 6}, {"OTHER_LOAD", 7}, {nullptr, 0}};

CLS_INSTANCE(kloC, kprC_PropagatingContainer<kloC_Load>);
CLS_INSTANCE(kloC, mdl_ExtensionWrapper<kprC_PropagatingContainer<kloC_Load>>);
extern template class kprC_PropagatingContainer<kloC_Load>;

/// Derives every step's status and effective state of a load. Constructing one walks the steps.
class TVO_API kloC_LoadPropagator final : public kprC_Propagator<kloC_Family> {
 public:
  kloC_LoadPropagator(kloC_Load const& owner, Quads const& quads) : kprC_Propagator(owner, quads) { Run(); }
};
