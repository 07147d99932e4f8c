#include "kprC_SteadyStateSubspaceFrequency.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_SteadyStateSubspaceFrequency::Attributes() {
  using Self = kprC_SteadyStateSubspaceFrequency;
  static auto const table = cls_Describe<Self>("kprC_SteadyStateSubspaceFrequency", 445)
                                .Attribute("upper", &Self::upper)
                                .Attribute("lower", &Self::lower)
                                .Attribute("nPoints", &Self::nPoints)
                                .Attribute("bias", &Self::bias)
                                .Constructor("SteadyStateSubspaceFrequency");
  return table;
}
