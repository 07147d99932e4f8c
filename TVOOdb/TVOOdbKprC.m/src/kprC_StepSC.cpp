#include "kprC_oldLinks.h"

void* kprC_Step_207::Upgrade_207_409(dbc_Row const& oldRow, dbc_Row& newRow, int) {
  static int lastId = 0;
  rfm_FieldHandle const field("stepId");
  if (!oldRow.HasField(field) || oldRow.GetInt(field) == 0) newRow.SetInt(field, ++lastId);
  return nullptr;
}

void* kprC_Step_439::Upgrade_439_1327(dbc_Row const& oldRow, dbc_Row& newRow, int) {
  rfm_FieldHandle const field("suppress");
  if (!oldRow.HasField(field)) newRow.SetBool(field, false);
  return nullptr;
}
