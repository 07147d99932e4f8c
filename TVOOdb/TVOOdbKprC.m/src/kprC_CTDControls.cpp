#include "kprC_CTDControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_CTDControls::Attributes() {
  static auto const table = cls_Describe<kprC_CTDControls, kprC_TypicalControls>("kprC_CTDControls", 302)
                                .Attribute("temperatureField", &kprC_CTDControls::temperatureField);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_CTDControls::FieldGroups() const {
  auto groups = kprC_TypicalControls::FieldGroups();
  groups.push_back(Field(&kprC_CTDControls::temperatureField, temperatureRefusals));
  return groups;
}
