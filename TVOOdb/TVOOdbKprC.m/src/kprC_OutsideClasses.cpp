#include "kprC_OutsideClasses.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kadC_AdptMeshDomain::Attributes() {
  static auto const table = cls_Describe<kadC_AdptMeshDomain>("kadC_AdptMeshDomain", 203);
  return table;
}

cls_AttributeTable const& klcC_LoadCase::Attributes() {
  static auto const table = cls_Describe<klcC_LoadCase>("klcC_LoadCase", 203);
  return table;
}
