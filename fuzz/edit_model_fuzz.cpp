// Arbitrary edit scripts on a model. After each command every invariant is checked.

#include <cstdio>
#include <cstdlib>

#include "RandomEdits.h"
#include "TVOOdbAttrEO.h"
#include "omu_Histories.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  static int depth = 0;
  TVOOdbAttrEO_initialize(depth);
  return 0;
}

namespace {

long commands = 0;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::size_t next = 0;
  RandomEdits edits([&](unsigned bound) { return next < size ? data[next++] % bound : 0u; });
  LivingModel model;
  while (next < size) {
    std::string const broken = model.Run(edits.Next(model.Model()));
    if (++commands % 100'000 == 0) std::fprintf(stderr, "%ld edit commands\n", commands);
    if (!broken.empty()) {
      std::fputs(broken.c_str(), stderr);
      std::abort();
    }
  }
  // Nobody undoes these edits.
  omu_ChangeHistory::Instance().Clear();
  omu_CmdHistory::Instance().Clear();
  return 0;
}
