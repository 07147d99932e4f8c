#include "kprC_LabelsBitMap.h"

#include <iterator>

#include "kprC_Procedures.h"

kprC_LabelsBitMap::kprC_LabelsBitMap() : ids_(static_cast<int>(std::size(kprC_ProcedureRows))) {
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) ids_.Append(row.id);
}

std::uint64_t kprC_LabelsBitMap::Value(unsigned int id) const { return kprC_ProcedureSet(id).Mask(); }
