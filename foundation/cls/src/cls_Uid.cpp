#include "cls_Uid.h"

#include <random>

namespace {

std::uint64_t FreshOrigin() {
  std::random_device device;
  return device() & 0xffffffu;
}

}  // namespace

std::uint64_t cls_Uid::last_ = FreshOrigin() << cls_Uid::originShift;
