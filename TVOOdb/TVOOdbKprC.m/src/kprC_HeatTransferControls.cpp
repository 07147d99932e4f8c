#include "kprC_HeatTransferControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_HeatTransferControls::Attributes() {
  static auto const table =
      cls_Describe<kprC_HeatTransferControls, kprC_PrimaryControls>("kprC_HeatTransferControls", 302)
          .Attribute("temperatureField", &kprC_HeatTransferControls::temperatureField);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_HeatTransferControls::FieldGroups() const {
  return {Field(&kprC_HeatTransferControls::temperatureField, temperatureRefusals)};
}
