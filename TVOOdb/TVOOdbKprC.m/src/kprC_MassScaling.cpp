#include "kprC_MassScaling.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_MassScaling::Attributes() {
  using Self = kprC_MassScaling;
  static auto const table = cls_Describe<Self>("kprC_MassScaling", 502)
                                .Attribute("objective", &Self::objective)
                                .Attribute("occurs", &Self::occurs)
                                .Attribute("factor", &Self::factor)
                                .Attribute("dt", &Self::dt)
                                .Attribute("type", &Self::type)
                                .Attribute("frequency", &Self::frequency)
                                .Attribute("numberInterval", &Self::numberInterval)
                                .Attribute("feedRate", &Self::feedRate)
                                .Attribute("extrudedLength", &Self::extrudedLength)
                                .Attribute("crossSection", &Self::crossSection)
                                .Attribute("direction", &Self::direction)
                                .Attribute("region", &Self::region)
                                .Constructor("MassScaling");
  return table;
}

void kprC_MassScaling::AssertValid() const {
  // A negative number of either passes, although the text of 60 asks for more than zero.
  auto const assertRepeated = [&] { kprC_Assert(frequency != 0 || numberInterval != 0, 60); };
  if (objective == AUTOMATIC) {
    kprC_Assert(feedRate > 0.0, 61);
    kprC_Assert(extrudedLength > 0.0, 62);
    kprC_Assert(crossSection > 0, 63);
    assertRepeated();
  } else if (objective == SEMI_AUTOMATIC && occurs == AT_BEGINNING) {
    kprC_Assert(factor > 0.0 || dt > 0.0, 59);
  } else if (objective == SEMI_AUTOMATIC) {
    kprC_Assert(dt > 0.0, 58);
    assertRepeated();
  }
}
