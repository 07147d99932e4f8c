#include "kbcC_SubmodelBC.h"

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_SubmodelBCState::Attributes() {
  using S = kbcC_SubmodelBCState;
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
                                .VariesBy<kbcC_SubmodelBCState>();
  return table;
}

void kbcC_SubmodelBC::AssertKind() const {
  for (Quad const& quad : states) {
    // A new object has a name of a step and has not met its procedure.
    bool const placed = quad.HasStep() || quad.stepName == kprC_Step::initialCmd();
    bool const given = quad.state.HasValue() && (quad.status == STATUS_CREATED || quad.state.ConstGet().IsModified());
    if (given && placed && !quad.IsStepSuppressed()) {
      kbcC_Assert(ValidInStepButRelaxCheckOnInitial(quad.Procedure(), false), 45);
    }
  }
}
