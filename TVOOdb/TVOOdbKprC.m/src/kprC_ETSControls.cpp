#include "kprC_ETSControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_ETSControls::Attributes() {
  static auto const table = cls_Describe<kprC_ETSControls, kprC_CTDControls>("kprC_ETSControls", 1615)
                                .Attribute("electricalPotentialField", &kprC_ETSControls::electricalPotentialField);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_ETSControls::FieldGroups() const {
  auto groups = kprC_CTDControls::FieldGroups();
  groups.push_back(Field(&kprC_ETSControls::electricalPotentialField, electricalPotentialRefusals));
  return groups;
}
