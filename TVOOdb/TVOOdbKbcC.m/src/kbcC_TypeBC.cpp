#include "kbcC_TypeBC.h"

#include "cls_Describe.h"
#include "kbcC_perturbationSteps.h"

cls_AttributeTable const& kbcC_TypeBCState::Attributes() {
  static auto const table = cls_Describe<kbcC_TypeBCState, kbcC_BCState>("kbcC_TypeBCState", 203)
                                .Attribute(0, "typeName", &kbcC_TypeBCState::typeName)
                                .Attribute(1, "buckleCase", &kbcC_TypeBCState::buckleCase);
  return table;
}

cls_AttributeTable const& kbcC_TypeBC::Attributes() {
  static auto const table =
      cls_Describe<kbcC_TypeBC, kbcC_BC>("kbcC_TypeBC", 203).Constructor(constructorCmd()).VariesBy<kbcC_TypeBCState>();
  return table;
}

void kbcC_TypeBCState::Zero() {
  kbcC_TypeNameEnm const type = typeName.ConstGet();
  mdl_PropAttributeStateEnm const state = typeName.State();
  kbcC_BCState::Zero();
  typeName = type;
  typeName.ForceState(state);
  buckleCase = kbcC_BucklingCaseEnm::NOT_APPLICABLE;
}

bool kbcC_TypeBCState::IsModified() const {
  return IsTypeEdited() || buckleCase != kbcC_BucklingCaseEnm::NOT_APPLICABLE;
}

bool kbcC_TypeBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofComponents, procedure, flag);
}

void kbcC_TypeBC::AssertKind() const {
  bool created = false;
  for (Quad const& quad : states) {
    if (quad.state.HasValue()) {
      // In suppressed steps, too: such an edit would refuse the step's return.
      auto const& state = kprC_CheckedCast<kbcC_TypeBCState>(quad.state.ConstGet(), __FILE__, __LINE__);
      kbcC_Assert(!created || !state.IsTypeEdited(), 46);
      created = true;
    }
  }
}
