#include "kloC_ConnectorForce.h"

#include "kloC_describeValues.h"

cls_AttributeTable const& kloC_ConnectorForceState::Attributes() {
  static auto const table = cls_Describe<kloC_ConnectorForceState, kloC_VectorState>("kloC_ConnectorForceState", 1627);
  return table;
}

cls_AttributeTable const& kloC_ConnectorForce::Attributes() {
  static auto const table =
      kloC_WithFastener(cls_Describe<kloC_ConnectorForce, kloC_Vector>("kloC_ConnectorForce", 1627))
          .Constructor(constructorCmd())
          .VariesBy<kloC_ConnectorForceState>();
  return table;
}
