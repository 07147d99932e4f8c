#include "kloC_HydroFluidFlow.h"

cls_AttributeTable const& kloC_HydroFluidFlowState::Attributes() {
  static auto const table = cls_Describe<kloC_HydroFluidFlowState, kloC_ScalarState>("kloC_HydroFluidFlowState", 203);
  return table;
}

cls_AttributeTable const& kloC_HydroFluidFlow::Attributes() {
  static auto const table = cls_Describe<kloC_HydroFluidFlow, kloC_Scalar>("kloC_HydroFluidFlow", 203)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_HydroFluidFlowState>();
  return table;
}
