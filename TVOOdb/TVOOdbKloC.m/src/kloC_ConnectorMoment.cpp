#include "kloC_ConnectorMoment.h"

#include "kloC_describeValues.h"

cls_AttributeTable const& kloC_ConnectorMomentState::Attributes() {
  static auto const table =
      cls_Describe<kloC_ConnectorMomentState, kloC_VectorState>("kloC_ConnectorMomentState", 1637);
  return table;
}

cls_AttributeTable const& kloC_ConnectorMoment::Attributes() {
  static auto const table =
      kloC_WithFastener(cls_Describe<kloC_ConnectorMoment, kloC_Vector>("kloC_ConnectorMoment", 1637))
          .Constructor(constructorCmd())
          .VariesBy<kloC_ConnectorMomentState>();
  return table;
}
