#include "kbcC_DisplacementBC.h"

#include "kbcC_describeComponents.h"
#include "kbcC_perturbationSteps.h"

cls_AttributeTable const& kbcC_DisplacementBCState::Attributes() {
  static auto const table =
      kbcC_WithDisplacements(cls_Describe<kbcC_DisplacementBCState, kbcC_BCState>("kbcC_DisplacementBCState", 203));
  return table;
}

cls_AttributeTable const& kbcC_DisplacementBC::Attributes() {
  static auto const table = cls_Describe<kbcC_DisplacementBC, kbcC_BC>("kbcC_DisplacementBC", 203)
                                .Attribute(6, "fixed", &kbcC_DisplacementBC::fixed)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_DisplacementBCState>();
  return table;
}

bool kbcC_DisplacementBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofComponents, procedure, flag);
}
