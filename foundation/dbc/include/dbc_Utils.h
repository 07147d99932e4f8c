#pragma once

#include <vector>

#include "dbc_Row.h"
#include "omi_Singleton.h"

/// What row functions do with attributes that take more than one cell. A key is the attribute's, without the suffix of
/// its field. A row whose shape lacks the attribute is refused.
class TVO_API dbc_Utils : public omi_Singleton<dbc_Utils> {
 public:
  // An empty container, with an identity of its own, for a new attribute of the row.
  void SetNewAttributeArrayIntInOutputDatabase(dbc_Row& row, cow_String const& key) const;
  void SetNewAttributeArrayDoubleInOutputDatabase(dbc_Row& row, cow_String const& key) const;
  void SetNewAttributeArrayStringInOutputDatabase(dbc_Row& row, cow_String const& key) const;
  /// A list of objects.
  void SetNewAttributeListInOutputDatabase(dbc_Row& row, cow_String const& key) const;
  /// A map from names to objects.
  void SetNewAttributeMapInOutputDatabase(dbc_Row& row, cow_String const& key) const;
  /// A map from names to identifiers.
  void SetNewAttributeMapListInOutputDatabase(dbc_Row& row, cow_String const& key) const;
  /// A map from integers to objects.
  void SetNewAttributeMapInt2ObjInOutputDatabase(dbc_Row& row, cow_String const& key) const;

  /// The list of floats; empty if the row has none.
  std::vector<float> GetAttributeArrayFloatFromInputDatabase(dbc_Row const& row, cow_String const& key) const;
  /// Gives the row a list of these doubles in place of what it had.
  void UpdateAttributeArrayDoubleInOutputDatabase(dbc_Row& row, cow_String const& key,
                                                  std::vector<double> const& values) const;
  /// The object that an attribute refers to; no row for none, or if the row lacks the attribute.
  dbc_Target GetObj(dbc_Row const& row, cow_String const& key) const;
  /// Makes the attribute refer to that object.
  void SetObj(dbc_Row& row, cow_String const& key, dbc_Target object) const;
};
