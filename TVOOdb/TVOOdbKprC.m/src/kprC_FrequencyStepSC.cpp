#include "kprC_FrequencyStep.h"
#include "kprC_oldLinks.h"
#include "dbc_Utils.h"
#include "rgnC_RegionTable.h"

void* kprC_FrequencyStep_831::Upgrade_831_858(dbc_Row const&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("substructureCutoffMultiplier"), 5.0);
  newRow.SetDouble(rfm_FieldHandle("firstCutoffMultiplier"), 1.6);
  newRow.SetDouble(rfm_FieldHandle("secondCutoffMultiplier"), 1.3);
  dbc_Utils const& utils = dbc_Utils::Instance();
  utils.SetNewAttributeArrayIntInOutputDatabase(newRow, "residualModeDof");
  utils.SetNewAttributeArrayStringInOutputDatabase(newRow, "residualModeRegion");
  rgnC_RegionTable(dbc_DatabaseConverterHolder::Instance().GetDatabaseConverter())
      .AddNewRegion(newRow, "limitSavedEigenvectorRegion");
  return nullptr;
}

// A row that was a kprC_Frequency may lack the fields of the next two links; then the step's own defaults hold.

void* kprC_FrequencyStep_858::Upgrade_858_881(dbc_Row const& oldRow, dbc_Row& newRow, int) {
  rfm_FieldHandle const field("propertyEvaluationFrequency");
  if (oldRow.HasField(field) && !(oldRow.GetDouble(field) > 0.0)) newRow.SetDouble(field, cls_NotGiven<double>);
  return nullptr;
}

void* kprC_FrequencyStep_881::Upgrade_881_1033(dbc_Row const& oldRow, dbc_Row& newRow, int) {
  rfm_FieldHandle const field("acousticCoupling");
  if (oldRow.HasField(field)) newRow.SetString(field, oldRow.GetInt(field) == 0 ? "AC_OFF" : "AC_ON");
  newRow.SetBool(rfm_FieldHandle("projectDamping"), true);
  newRow.SetDouble(rfm_FieldHandle("acousticRangeFactor"), 1.0);
  return nullptr;
}

void* kprC_FrequencyStep_1033::Upgrade_1033_1044(dbc_Row const&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("simLinearDynamics"), false);
  return nullptr;
}
