#pragma once

#include <cstdint>

#include "TVOExport.h"
#include "cow_List.h"
#include "omi_Singleton.h"

/// The analysis procedures as single bits of a 64-bit mask, in the order of kprC_ProcedureRows.
class TVO_API kprC_LabelsBitMap final : public omi_Singleton<kprC_LabelsBitMap> {
 public:
  kprC_LabelsBitMap();

  /// The procedure's bit; 0 for an identifier that is no procedure. Constant time.
  std::uint64_t Value(unsigned int id) const;
  /// The identifiers of all procedures, in bit order. The list shares its storage with the one kept here.
  cow_List<unsigned int> Ids() const { return ids_; }

 private:
  cow_List<unsigned int> ids_;
};
