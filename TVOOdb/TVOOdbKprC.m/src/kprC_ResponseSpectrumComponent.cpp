#include "kprC_ResponseSpectrumComponent.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_ResponseSpectrumComponent::Attributes() {
  using Self = kprC_ResponseSpectrumComponent;
  static auto const table = cls_Describe<Self>("kprC_ResponseSpectrumComponent", 1519)
                                .Attribute("spectrum", &Self::spectrum)
                                .Attribute("x", &Self::x)
                                .Attribute("y", &Self::y)
                                .Attribute("z", &Self::z)
                                .Attribute("scale", &Self::scale)
                                .Attribute("timeDuration", &Self::timeDuration)
                                .Constructor("ResponseSpectrumComponent");
  return table;
}

void kprC_ResponseSpectrumComponent::AssertValid() const {
  kprC_Assert(!spectrum.IsEmpty(), 37);
  kprC_Assert(scale > 0.0, 39);
  kprC_Assert(timeDuration >= 0.0, 301);
}
