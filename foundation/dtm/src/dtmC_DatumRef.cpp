#include "dtmC_DatumRef.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& dtmC_DatumRef::Attributes() {
  static auto const table = cls_Describe<dtmC_DatumRef>("dtmC_DatumRef", 203).Attribute("name", &dtmC_DatumRef::name);
  return table;
}
