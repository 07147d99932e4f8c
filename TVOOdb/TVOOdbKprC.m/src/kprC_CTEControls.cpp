#include "kprC_CTEControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_CTEControls::Attributes() {
  static auto const table = cls_Describe<kprC_CTEControls, kprC_HeatTransferControls>("kprC_CTEControls", 302)
                                .Attribute("electricalPotentialField", &kprC_CTEControls::electricalPotentialField);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_CTEControls::FieldGroups() const {
  auto groups = kprC_HeatTransferControls::FieldGroups();
  groups.push_back(Field(&kprC_CTEControls::electricalPotentialField, electricalPotentialRefusals));
  return groups;
}
