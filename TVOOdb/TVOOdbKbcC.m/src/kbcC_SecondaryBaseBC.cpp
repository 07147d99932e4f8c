#include "kbcC_SecondaryBaseBC.h"

#include "cls_Describe.h"
#include "kbcC_perturbationSteps.h"

cls_AttributeTable const& kbcC_SecondaryBaseBCState::Attributes() {
  static auto const table = cls_Describe<kbcC_SecondaryBaseBCState, kbcC_BCState>("kbcC_SecondaryBaseBCState", 1634);
  return table;
}

cls_AttributeTable const& kbcC_SecondaryBaseBC::Attributes() {
  static auto const table = cls_Describe<kbcC_SecondaryBaseBC, kbcC_BC>("kbcC_SecondaryBaseBC", 1634)
                                .Attribute(0, "regions", &kbcC_SecondaryBaseBC::regions)
                                .Attribute(1, "dofs", &kbcC_SecondaryBaseBC::dofs)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_SecondaryBaseBCState>();
  return table;
}

bool kbcC_SecondaryBaseBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofBaseMotion, procedure, flag);
}

cls_xoList<rgnC_Region> kbcC_SecondaryBaseBC::Regions(rgnC_RegionType type) const {
  cls_xoList<rgnC_Region> found;
  for (rgnC_Region const& one : regions) {
    if (one.IsOfType(type)) {
      found.Append(one);
    }
  }
  return found;
}

void kbcC_SecondaryBaseBC::AssertKind() const {
  kbcC_Assert(!regions.IsEmpty(), 91);
  kbcC_Assert(regions.Length() == dofs.Length(), 92);
  for (cls_xp1DArrayListInt const& ofRegion : dofs) {
    kbcC_Assert(ofRegion.Length() <= 6, 94);
    for (int const dof : ofRegion) {
      kbcC_Assert(dof >= 0 && dof < 7, 93);
    }
  }
}
