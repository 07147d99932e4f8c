#include "nex_DynamicCast.h"

#include <cstdio>

#include "nex_Exception.h"
#include "typ_ArchCompTable.h"

namespace {

cow_String Described(unsigned int typeId) {
  char number[16];
  std::snprintf(number, sizeof number, "0x%x", typeId);
  return cow_String("\"") + typ_ArchCompTable::GetName(typeId) + "\" (" + number + ")";
}

}  // namespace

void nex_canDynamicCastRef(unsigned int target, unsigned int actual, char const* file, int line) {
  if (nex_canDynamicCastPtr(target, actual)) return;
  nex_PrimException<cow_String, 3>("An object of type " + Described(actual) + " is not a " + Described(target) + ".")
      .Throw(file, line);
}

bool nex_canDynamicCastPtr(unsigned int target, unsigned int actual) noexcept {
  return typ_ArchCompTable::IsParent(target, actual);
}
