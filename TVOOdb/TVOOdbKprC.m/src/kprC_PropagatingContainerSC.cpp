#include "kprC_OldShapes.h"
#include "mdl_Extension.h"

void* kprC_PropagatingContainer_203::Upgrade_203_510(dbc_Row const&, dbc_Row& newRow, int) {
  dbc_DatabaseConverter& converter = dbc_DatabaseConverterHolder::Instance().GetDatabaseConverter();
  rfm_FieldHandle const base(cls_BaseClassField);
  dbc_Row repository = converter.Output().GetOutputTable(mdl_Repository::TypeId()).NewRow(false);
  repository.SetInt(base, -1);
  newRow.SetInt(base, static_cast<int>(repository.Number()));
  return nullptr;
}
