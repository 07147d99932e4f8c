#include "kbcC_BC.h"

#include "kbcC_BCTypes.h"
#include "kbcC_rules.h"
#include "kprC_PropagatingContainerCode.h"
#include "kprC_StepDependentMachine.h"
#include "kprC_typeUtils.h"

template class kprC_StepDependent<kbcC_Family>;
template class kprC_Propagator<kbcC_Family>;
template class kprC_PropagatingContainer<kbcC_BC>;

namespace {

using namespace kprC_Procedure;

constexpr kprC_ProcedureSet withComplexValues{SteadyStateDirect, EmagTimeHarmonic};
constexpr kprC_ProcedureSet ofFrequencies{Frequency, ComplexFrequency};

}  // namespace

kprC_StepRules const& kbcC_Family::Rules() { return kbcC_Rules::all; }

void kbcC_Family::RefuseStep(mdl_PropagationStatusEnm status, cow_String const& step) {
  atr_translate message("The boundary condition is %1$s in step: %2$s.", 0);
  atr_SubstituteFormat(message, 1, omu_PrimEnum<mdl_PropagationStatusEnm, 1>(status).AsString(), 0);
  atr_SubstituteFormat(message, 2, step, 0);
  nex_PrimException<atr_String, 1>(message.Result(0)).Throw(__FILE__, __LINE__);
}

char const* kbcC_Family::RepositoryName() noexcept { return kbcC_BC::bcRepositoryCmd(); }

// ---- the state

cls_AttributeTable const& kbcC_BCState::Attributes() {
  static auto const table = cls_Describe<kbcC_BCState>("kbcC_BCState", 203)
                                .Attribute(0, "deactivate", &kbcC_BCState::deactivate)
                                .Attribute(1, "amplitude", &kbcC_BCState::amplitude);
  return table;
}

bool kbcC_BCState::UseAmplitude(unsigned int procedure) const {
  return procedure != 0 && kprC_AmplitudeState::UseAmplitude(procedure);
}
bool kbcC_BCState::UseComplex(unsigned int procedure) const { return withComplexValues.Contains(procedure); }
bool kbcC_BCState::UseMagnitude(unsigned int procedure) const { return !ofFrequencies.Contains(procedure); }

// ---- the object

cls_AttributeTable const& kbcC_BC::Attributes() {
  static auto const table = cls_Describe<kbcC_BC>("kbcC_BC", 1327)
                                .Attribute(8, "suppressionState", &kbcC_BC::suppressionState)
                                .Attribute(3, "region", &kbcC_BC::region)
                                .Attribute(4, "csys", &kbcC_BC::csys)
                                .Attribute(6, "distribution", &kbcC_BC::distribution)
                                .Attribute(5, "states", &kbcC_BC::states)
                                .Attribute(7, "fieldName", &kbcC_BC::fieldName);
  return table;
}

bool kbcC_BC::UseBasename(unsigned int procedure) const { return ofFrequencies.Contains(procedure); }

cls_xoList<rgnC_Region> kbcC_BC::Regions(rgnC_RegionType type) const { return kprC_RegionsOfType(region, type); }

bool kbcC_BC::UsesField(cow_String& field) const {
  bool const uses = distribution == FIELD || distribution == DISCRETE_FIELD;
  field = uses ? fieldName : cow_String();
  return uses;
}

bool kbcC_BC::ValidInStep(int procedure, bool flag, bool, int) const {
  if (kprC_IsFlow(static_cast<unsigned int>(procedure)) && !AllowedInFlow()) {
    return false;
  }
  return kbcC_isOfferedBCTypeforStep(static_cast<int>(DynTypeId()), procedure, STANDARD_ANALYSIS) ||
         ValidInPerturbationStep(procedure, flag);
}

void kbcC_BC::AssertValid() const {
  if (suppressionState == RESUMED) {
    kprC_StepDependent::AssertValid();
    AssertKind();
  }
}

void kbcC_BC::AssertDefinition() const {
  cow_String field;
  kbcC_Assert(!UsesField(field) || !field.IsEmpty(), 60);
}

void kbcC_BC::AssertCreateStep(int procedure) const {
  kbcC_Assert(procedure != static_cast<int>(Anneal), 24);
  kbcC_Assert(ValidInStepButRelaxCheckOnInitial(procedure, false), 45);
}

void kbcC_BC::AssertMove(Quad const&, Quad const& to) const {
  bool const toFirstAnalysisStep = states.Length() > 1 && states[1].stepName == to.stepName;
  kbcC_Assert(!toFirstAnalysisStep || !IsHeldInPlace(), 107);
}

// ---- the walk

bool kbcC_BCPropagator::CheckFrequency(int procedure) {
  if (procedure != static_cast<int>(Frequency)) {
    return false;
  }
  running_.baseState = nullptr;
  running_.baseStatus = STATUS_BASE_BUILT_IN;
  return true;
}

void kbcC_BCPropagator::Perturb(int procedure) {
  if (!running_.perturbed) {
    SaveBase();
  }
  if (procedure == static_cast<int>(Frequency)) {
    running_.frequencyDeactivated = false;
  }
  running_.state = running_.baseState;
  running_.status = running_.baseStatus == STATUS_DEACTIVATED ? STATUS_INACTIVE : running_.baseStatus;
  running_.perturbed = true;
  if (running_.status == STATUS_INACTIVE) {
    DropState();
  }
  if (!owner_.IsActive(running_.status)) {
    return;
  }
  if (cls_ClassRegistrar::InheritanceCheck(running_.state.ConstGet().DynTypeId(), kbcC_TypeId("kbcC_TemperatureBCState"))) {
    DropState();
    running_.status = STATUS_BUILT_IN;
  } else if (kprC_ProcIsModal(procedure)) {
    DropState();
    running_.status = running_.frequencyDeactivated ? STATUS_INACTIVE : STATUS_BASE_BUILT_IN;
  } else {
    kbcC_BCState& state = running_.state.Get();
    state.Zero();
    state.Propagate();
    state.deactivate = false;  // a mark of the step that creates is that step's own
    state.NewUid();
    running_.status = STATUS_BASE_PROPAGATED;
  }
}
