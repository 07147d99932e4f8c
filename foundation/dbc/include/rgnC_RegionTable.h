#pragma once

#include "dbc_DatabaseConverter.h"

/// The regions of a database that is converted.
class TVO_API rgnC_RegionTable {
 public:
  explicit rgnC_RegionTable(dbc_DatabaseConverter& converter) : converter_(converter) {}
  /// Creates an empty region for the attribute `key` of the row.
  void AddNewRegion(dbc_Row& row, cow_String const& key) const;

 private:
  dbc_DatabaseConverter& converter_;
};
