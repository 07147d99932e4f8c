#include "kprC_TypicalControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_TypicalControls::Attributes() {
  using Self = kprC_TypicalControls;
  static auto const table = cls_Describe<Self, kprC_PrimaryControls>("kprC_TypicalControls", 302)
                                .Attribute("displacementField", &Self::displacementField)
                                .Attribute("hydrostaticFluidPressureField", &Self::hydrostaticFluidPressureField)
                                .Attribute("rotationField", &Self::rotationField);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_TypicalControls::FieldGroups() const {
  return {Field(&kprC_TypicalControls::displacementField, displacementRefusals),
          Field(&kprC_TypicalControls::hydrostaticFluidPressureField, hydrostaticFluidPressureRefusals),
          Field(&kprC_TypicalControls::rotationField, rotationRefusals)};
}
