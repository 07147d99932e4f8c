#include "kprC_PoreControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_PoreControls::Attributes() {
  static auto const table = cls_Describe<kprC_PoreControls, kprC_TypicalControls>("kprC_PoreControls", 302)
                                .Attribute("poreFluidPressureField", &kprC_PoreControls::poreFluidPressureField);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_PoreControls::FieldGroups() const {
  auto groups = kprC_TypicalControls::FieldGroups();
  groups.push_back(Field(&kprC_PoreControls::poreFluidPressureField, poreFluidPressureRefusals));
  return groups;
}
