#include "kloC_FluidPressurePenetration.h"

cls_AttributeTable const& kloC_FluidPressurePenetrationState::Attributes() {
  static auto const table =
      cls_Describe<kloC_FluidPressurePenetrationState, kloC_LoadState>("kloC_FluidPressurePenetrationState", 2307)
          .Attribute(0, "magnitude", &kloC_FluidPressurePenetrationState::magnitude)
          .Attribute(1, "wettedRegion", &kloC_FluidPressurePenetrationState::wettedRegion)
          .Attribute(3, "evolutionRegionMethod", &kloC_FluidPressurePenetrationState::evolutionRegionMethod)
          .Attribute(4, "criticalPress", &kloC_FluidPressurePenetrationState::criticalPress)
          .Attribute(5, "timePeriod", &kloC_FluidPressurePenetrationState::timePeriod);
  return table;
}

cls_AttributeTable const& kloC_FluidPressurePenetration::Attributes() {
  static auto const table =
      cls_Describe<kloC_FluidPressurePenetration, kloC_Load>("kloC_FluidPressurePenetration", 2307)
          .Attribute(2, "distType", &kloC_FluidPressurePenetration::distType)
          .Constructor(constructorCmd())
          .VariesBy<kloC_FluidPressurePenetrationState>();
  return table;
}
