#include "TVOOdbAttrEO.h"

#include <iterator>

#include "TVOLowerLibraries.h"
#include "kbcC_module.h"
#include "kcnC_module.h"
#include "kinC_module.h"
#include "kloC_module.h"
#include "korC_module.h"
#include "kpfC_module.h"
#include "kprC_module.h"
#include "kseC_module.h"
#include "ptoC_module.h"

namespace {

struct Part {
  void (*initialize)(int&);
  void (*finalize)(int&);
};

/// In the order in which they come up; they are taken down in the reverse one.
constexpr Part parts[] = {
#define PART(Name) {&Name##_initialize, &Name##_finalize},
    TVO_LOWER_LIBRARIES(PART)
    PART(TVOOdbKseC)
    PART(TVOOdbKcnC)
    PART(TVOOdbPtoC)
    PART(TVOOdbKprC)
    PART(TVOOdbKpfC)
    PART(TVOOdbKorC)
    PART(TVOOdbKloC)
    PART(TVOOdbKinC)
    PART(TVOOdbKbcC)
#undef PART
};

ddr_UseCount starts;
ddr_UseCount up;
int depthOfC = 0;

}  // namespace

void TVOOdbAttrEO_initialize(int& depth) {
  if (!starts.Enter(depth)) return;
  for (Part const& part : parts) part.initialize(depth);
  up.Enter(depth);
}

void TVOOdbAttrEO_finalize(int& depth) {
  if (!starts.Leave(depth)) return;
  up.Leave(depth);
  for (auto part = std::rbegin(parts); part != std::rend(parts); ++part) part->finalize(depth);
}

void TVOOdbAttrEO_initializeC() { TVOOdbAttrEO_initialize(depthOfC); }
void TVOOdbAttrEO_finalizeC() { TVOOdbAttrEO_finalize(depthOfC); }
