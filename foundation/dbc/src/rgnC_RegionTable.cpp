#include "rgnC_RegionTable.h"

#include "dbc_Utils.h"
#include "rgnC_Region.h"

void rgnC_RegionTable::AddNewRegion(dbc_Row& row, cow_String const& key) const {
  dbc_Row const region = converter_.Output().GetOutputTable(rgnC_Region::TypeId()).NewRow(true);
  dbc_Utils::Instance().SetObj(row, key, {rgnC_Region::TypeId(), region.Number()});
}
