#include "kbcC_TemperatureBC.h"

#include "cls_Describe.h"
#include "kbcC_perturbationSteps.h"

namespace {

// Built in instead of what general conditions are in a perturbation step.
constexpr std::uint32_t known = kprC_Statuses({0, 1, 2, 3, 4, 5, 6, 7, 8});
constexpr kprC_StatusPredicate active{kprC_Statuses({1, 2, 3, 8}), known};
constexpr kprC_StatusPredicate propagated{kprC_Statuses({2}), known};
constexpr kprC_StatusPredicate builtIn{kprC_Statuses({8}), known};

}  // namespace

cls_AttributeTable const& kbcC_TemperatureBCState::Attributes() {
  using S = kbcC_TemperatureBCState;
  static auto const table =
      cls_Describe<S, kbcC_DistributedBCState>("kbcC_TemperatureBCState", 203).Attribute(0, "dof", &S::dof);
  return table;
}

cls_AttributeTable const& kbcC_TemperatureBC::Attributes() {
  using BC = kbcC_TemperatureBC;
  static auto const table = cls_Describe<BC, kbcC_DistributedBC>("kbcC_TemperatureBC", 203)
                                .Attribute(1, "useExtendedDof", &BC::useExtendedDof)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_TemperatureBCState>();
  return table;
}

void kbcC_TemperatureBCState::AssertValid() const {
  for (int const degree : dof.ConstGet()) {
    kbcC_Assert(degree >= 11 && degree <= 31, 43);
  }
}

bool kbcC_TemperatureBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofAcceleration, procedure, flag);
}

void kbcC_TemperatureBC::AssertKind() const {
  kbcC_DistributedBC::AssertKind();
  for (Quad const& quad : states) {
    if (useExtendedDof && quad.state.HasValue() && !quad.IsStepSuppressed()) {
      auto const& state = kprC_CheckedCast<kbcC_TemperatureBCState>(quad.state.ConstGet(), __FILE__, __LINE__);
      kbcC_Assert(!state.dof.ConstGet().IsEmpty(), 40);
    }
  }
}

void kbcC_TemperatureBC::UpdateStates() {
  kbcC_DistributedBC::UpdateStates();
  bool dropped = false;
  for (int i = 0; i < states.Length(); ++i) {
    Quad const& quad = states.UncheckedConstGet(i);
    bool const edited = quad.state.HasValue() && quad.state.ConstGet().amplitude.IsModified();
    auto const procedure = static_cast<unsigned int>(quad.Procedure());
    if (edited && !quad.IsStepSuppressed() && !quad.state.ConstGet().UseAmplitude(procedure)) {
      Unsettle();
      states.Get(i).state.Get().ChangeProcedureType(procedure);
      dropped = true;
    }
  }
  if (dropped) {
    Sync();
  }
}

bool kbcC_TemperatureBC::IsActive(mdl_PropagationStatusEnm status) const { return Answer(active, status); }
bool kbcC_TemperatureBC::IsPropagated(mdl_PropagationStatusEnm status) const { return Answer(propagated, status); }
bool kbcC_TemperatureBC::IsBuiltIn(mdl_PropagationStatusEnm status) const { return Answer(builtIn, status); }
