#include "kprC_ElectricalControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_ElectricalControls::Attributes() {
  static auto const table =
      cls_Describe<kprC_ElectricalControls, kprC_TypicalControls>("kprC_ElectricalControls", 302)
          .Attribute("electricalPotentialField", &kprC_ElectricalControls::electricalPotentialField);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_ElectricalControls::FieldGroups() const {
  auto groups = kprC_TypicalControls::FieldGroups();
  groups.push_back(Field(&kprC_ElectricalControls::electricalPotentialField, electricalPotentialRefusals));
  return groups;
}
