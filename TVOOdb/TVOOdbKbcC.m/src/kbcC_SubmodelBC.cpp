#include "kbcC_SubmodelBC.h"

#include "cls_Describe.h"

using S = kbcC_SubmodelBCState;

cls_AttributeTable const& kbcC_SubmodelBCState::Attributes() {
  static auto const table = cls_Describe<S, kbcC_BCState>("kbcC_SubmodelBCState", 1015)
                                .Attribute(0, "fixed", &S::fixed)
                                .Attribute(1, "globalStep", &S::globalStep)
                                .Attribute(2, "globalIncrement", &S::globalIncrement)
                                .Attribute(3, "dof", &S::dof)
                                .Attribute(4, "centerZoneSize", &S::centerZoneSize)
                                .Attribute(10, "scale", &S::scale);
  return table;
}

cls_AttributeTable const& kbcC_SubmodelBC::Attributes() {
  using BC = kbcC_SubmodelBC;
  static auto const table = cls_Describe<BC, kbcC_BC>("kbcC_SubmodelBC", 2101)
                                .Attribute(6, "globalDrivingRegion", &BC::globalDrivingRegion)
                                .Attribute(7, "shellThickness", &BC::shellThickness)
                                .Attribute(8, "absoluteExteriorTolerance", &BC::absoluteExteriorTolerance)
                                .Attribute(9, "exteriorTolerance", &BC::exteriorTolerance)
                                .Constructor(constructorCmd())
                                .VariesBy<S>();
  return table;
}

void kbcC_SubmodelBCState::Modify(kprC_StepState const& other) {
  kbcC_BCState::Modify(other);
  auto const& edit = static_cast<S const&>(other);
  globalStep = edit.globalStep;
  globalIncrement = edit.globalIncrement;
}

void kbcC_SubmodelBC::AssertValid() const {
  if (suppressionState != RESUMED) {
    return;
  }
  kbcC_BC::AssertValid();
  for (Quad const& quad : states) {
    bool const given = quad.state.HasValue() && (quad.status == STATUS_CREATED || quad.state.ConstGet().IsModified());
    if (given && !quad.IsStepSuppressed()) {
      kbcC_Assert(ValidInStepButRelaxCheckOnInitial(quad.Procedure(), false), 45);
    }
  }
}

bool kbcC_SubmodelBC::Insert(cow_String const& step, kbcC_BCState const& state) {
  auto const* const present = IsMember(step) ? static_cast<S const*>(StateIn(step)) : nullptr;
  auto const& edit = kprC_CheckedCast<S>(state, __FILE__, __LINE__);
  if (present == nullptr ||
      (edit.globalStep == present->globalStep && edit.globalIncrement == present->globalIncrement)) {
    return kbcC_BC::Insert(step, state);
  }
  // Step and increment of the global model do not know where they were given. Where they change, the degrees of freedom
  // that they drive count as given, so that the edit is told from what is inherited.
  S given = edit;
  given.dof.Get();
  return kbcC_BC::Insert(step, given);
}
