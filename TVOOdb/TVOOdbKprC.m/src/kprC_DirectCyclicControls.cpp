#include "kprC_DirectCyclicControls.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_DirectCyclicControls::Attributes() {
  using Self = kprC_DirectCyclicControls;
  static auto const table = cls_Describe<Self, kprC_PrimaryControls>("kprC_DirectCyclicControls", 1381)
                                .Attribute("displacementField", &Self::displacementField)
                                .Attribute("rotationField", &Self::rotationField)
                                .Attribute("directCyclic", &Self::directCyclic);
  return table;
}

std::vector<kprC_PrimaryControls::FieldGroup> kprC_DirectCyclicControls::FieldGroups() const {
  return {Field(&kprC_DirectCyclicControls::displacementField, displacementRefusals),
          Field(&kprC_DirectCyclicControls::rotationField, rotationRefusals)};
}

void kprC_DirectCyclicControls::AssertValid() const {
  kprC_PrimaryControls::AssertValid();
  AssertNumbers(directCyclic, defaultDirectCyclic, 130);
}
