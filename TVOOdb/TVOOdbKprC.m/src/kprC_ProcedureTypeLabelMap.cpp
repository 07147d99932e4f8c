#include "kprC_ProcedureTypeLabelMap.h"

#include "kprC_Procedures.h"

kprC_ProcedureTypeLabelMap::kprC_ProcedureTypeLabelMap() {
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) Insert(row.id, row.label, row.label);
}
