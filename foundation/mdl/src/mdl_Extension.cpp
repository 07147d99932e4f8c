#include "mdl_Extension.h"

cls_AttributeTable const& mdl_Extension::Attributes() {
  static auto const table = cls_Describe<mdl_Extension>("mdl_Extension", 203);
  return table;
}

cls_AttributeTable const& mdl_Repository::Attributes() {
  static auto const table = cls_Describe<mdl_Repository, mdl_Extension>("mdl_Repository", 203);
  return table;
}

template class mdl_MapOfCowsRepository<cow_String, mdl_Extension>;
