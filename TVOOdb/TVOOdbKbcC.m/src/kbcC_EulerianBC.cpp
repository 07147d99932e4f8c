#include "kbcC_EulerianBC.h"

#include "cls_Describe.h"

cls_AttributeTable const& kbcC_EulerianBCState::Attributes() {
  static auto const table = cls_Describe<kbcC_EulerianBCState, kbcC_BCState>("kbcC_EulerianBCState", 1376)
                                .Attribute(0, "definition", &kbcC_EulerianBCState::definition)
                                .Attribute(1, "inflowType", &kbcC_EulerianBCState::inflowType)
                                .Attribute(2, "outflowType", &kbcC_EulerianBCState::outflowType);
  return table;
}

cls_AttributeTable const& kbcC_EulerianBC::Attributes() {
  static auto const table = cls_Describe<kbcC_EulerianBC, kbcC_BC>("kbcC_EulerianBC", 1376)
                                .Constructor(constructorCmd())
                                .VariesBy<kbcC_EulerianBCState>();
  return table;
}

void kbcC_EulerianBCState::AssertValid() const {
  kbcC_Assert(outflowType != kbcC_EulerianOutflowEnm::NONE || inflowType == kbcC_EulerianInflowEnm::NONE, 106);
}
