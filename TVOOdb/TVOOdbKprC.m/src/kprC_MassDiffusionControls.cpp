#include "kprC_MassDiffusionControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_MassDiffusionControls::Attributes() {
  static auto const table =
      cls_Describe<kprC_MassDiffusionControls, kprC_PrimaryControls>("kprC_MassDiffusionControls", 302)
          .Attribute("concentrationField", &kprC_MassDiffusionControls::concentrationField);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_MassDiffusionControls::FieldGroups() const {
  return {Field(&kprC_MassDiffusionControls::concentrationField, concentrationRefusals)};
}
