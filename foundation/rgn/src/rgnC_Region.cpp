#include "rgnC_Region.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& rgnC_Region::Attributes() {
  static auto const table = cls_Describe<rgnC_Region>("rgnC_Region", 203)
                                .Attribute("name", &rgnC_Region::name)
                                .Attribute("instance", &rgnC_Region::instance)
                                .Attribute("kind", &rgnC_Region::kind);
  return table;
}
