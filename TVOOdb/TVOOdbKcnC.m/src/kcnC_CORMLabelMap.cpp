#include "kcnC_CORMLabelMap.h"

namespace {

constexpr char const* labels[] = {"U1", "U2", "U3", "UR1", "UR2", "UR3"};

}  // namespace

kcnC_CORMLabelMap::kcnC_CORMLabelMap() {
  unsigned int number = 0;
  for (char const* label : labels) {
    Insert(++number, label, label, 0);
  }
}
