#include "kloC_SubmodelStressBased.h"

cls_AttributeTable const& kloC_SubmodelStressBasedState::Attributes() {
  static auto const table =
      cls_Describe<kloC_SubmodelStressBasedState, kloC_LoadState>("kloC_SubmodelStressBasedState", 1016)
          .Attribute(0, "fixed", &kloC_SubmodelStressBasedState::fixed)
          .Attribute(1, "globalStep", &kloC_SubmodelStressBasedState::globalStep)
          .Attribute(2, "globalIncrement", &kloC_SubmodelStressBasedState::globalIncrement)
          .Attribute(3, "scale", &kloC_SubmodelStressBasedState::scale);
  return table;
}

cls_AttributeTable const& kloC_SubmodelStressBased::Attributes() {
  static auto const table =
      cls_Describe<kloC_SubmodelStressBased, kloC_Load>("kloC_SubmodelStressBased", 1017)
          .Attribute(4, "globalDrivingRegion", &kloC_SubmodelStressBased::globalDrivingRegion)
          .Attribute(5, "absoluteExteriorTolerance", &kloC_SubmodelStressBased::absoluteExteriorTolerance)
          .Attribute(6, "exteriorTolerance", &kloC_SubmodelStressBased::exteriorTolerance)
          .Constructor(constructorCmd())
          .VariesBy<kloC_SubmodelStressBasedState>();
  return table;
}
