#include "kloC_Load.h"

#include "kloC_LoadTypes.h"
#include "kloC_rules.h"
#include "kprC_PropagatingContainerCode.h"
#include "kprC_StepDependentMachine.h"
#include "kprC_typeUtils.h"

template class kprC_StepDependent<kloC_Family>;
template class kprC_Propagator<kloC_Family>;
template class kprC_PropagatingContainer<kloC_Load>;

kprC_StepRules const& kloC_Family::Rules() { return kloC_Rules::all; }

char const* kloC_Family::RepositoryName() noexcept { return kloC_Load::loadRepositoryCmd(); }

// ---- the state

cls_AttributeTable const& kloC_LoadState::Attributes() {
  static auto const table = cls_Describe<kloC_LoadState>("kloC_LoadState", 203)
                                .Attribute("deactivate", &kloC_LoadState::deactivate)
                                .Attribute("amplitude", &kloC_LoadState::amplitude);
  return table;
}

bool kloC_LoadState::UseComplex(unsigned int procedure) const {
  using namespace kprC_Procedure;
  constexpr kprC_ProcedureSet withComplexValues{SteadyStateDirect, SteadyStateSubspace, EmagTimeHarmonic};
  return withComplexValues.Contains(procedure);
}

// ---- the object

cls_AttributeTable const& kloC_Load::Attributes() {
  static auto const table = cls_Describe<kloC_Load>("kloC_Load", 1393)
                                .Attribute("region", &kloC_Load::region)
                                .Attribute("suppressionState", &kloC_Load::suppressionState)
                                .Attribute("states", &kloC_Load::states)
                                .Attribute("fieldName", &kloC_Load::fieldName);
  return table;
}

bool kloC_Load::UsesField(cow_String& field) const {
  auto const distribution = Distribution();
  bool const uses =
      distribution == kloC_DistributionEnm::FIELD || distribution == kloC_DistributionEnm::DISCRETE_FIELD;
  field = uses ? fieldName : cow_String();
  return uses;
}

cls_xoList<rgnC_Region> kloC_Load::Regions(rgnC_RegionType type) const { return kprC_RegionsOfType(region, type); }

bool kloC_Load::ValidInStep(int procedure, bool flag, bool, int) const {
  return kloC_isOfferedLoadTypeforStep(static_cast<int>(DynTypeId()), procedure) ||
         ValidInPerturbationStep(procedure, flag);
}

void kloC_Load::AssertValid() const {
  if (suppressionState != RESUMED) {
    return;
  }
  AssertValidAnyMagnitude();
  AssertKind();
  if (Distribution() != kloC_DistributionEnm::USER_DEFINED) {
    Quad const& creating = *CreatingQuad();
    kloC_Assert(HasMagnitude(creating.state.ConstGet(), creating.Procedure()), 41);
  }
}

void kloC_Load::AssertValidAnyMagnitude() const {
  if (suppressionState != RESUMED) {
    return;
  }
  kprC_StepDependent::AssertValid();
  Quad const& creating = *CreatingQuad();
  kloC_Assert(creating.HasStep() || creating.stepName != kprC_Step::initialCmd(), 2);
}

void kloC_Load::AssertValidInSpace(kloC_SpaceEnm space) const {
  if (suppressionState == RESUMED) {
    AssertInSpace(space);
  }
}

void kloC_Load::AssertDefinition() const {
  cow_String field;
  kloC_Assert(!UsesField(field) || !field.IsEmpty(), 69);
  kloC_Assert(Distribution().has_value() || fieldName.IsEmpty(), 68);
}

void kloC_Load::AssertCreateStep(int procedure) const {
  kloC_Assert(procedure != static_cast<int>(kprC_Procedure::Anneal), 18);
  kloC_Assert(ValidInStepButRelaxCheckOnInitial(procedure, false), 34);
  bool const uniform = Distribution().value_or(kloC_DistributionEnm::UNIFORM) == kloC_DistributionEnm::UNIFORM;
  kloC_Assert(uniform || !kprC_IsFlow(static_cast<unsigned int>(procedure)), 76);
}
