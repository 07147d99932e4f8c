#include "kprC_SteadyStateModalFrequency.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_SteadyStateModalFrequency::Attributes() {
  using Self = kprC_SteadyStateModalFrequency;
  static auto const table = cls_Describe<Self>("kprC_SteadyStateModalFrequency", 203)
                                .Attribute("upper", &Self::upper)
                                .Attribute("lower", &Self::lower)
                                .Attribute("nPoints", &Self::nPoints)
                                .Attribute("bias", &Self::bias)
                                .Constructor("SteadyStateModalFrequency");
  return table;
}
