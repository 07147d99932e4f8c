#include "kprC_StepRepository.h"

cls_xoList<rgnC_Region> kprC_RegionsOfType(rgnC_Region const& region, rgnC_RegionType type) {
  cls_xoList<rgnC_Region> regions;
  if (region.IsOfType(type)) {
    regions.Append(region);
  }
  return regions;
}

kprC_RegionUse::Count* kprC_RegionUse::Find(rgnC_Region const& region) {
  auto const found = byName_.find(region.name);
  if (found != byName_.end()) {
    for (Count& count : found->second) {
      if (count.region == region) {
        return &count;
      }
    }
  }
  return nullptr;
}

void kprC_RegionUse::Add(cls_xoList<rgnC_Region> const& regions) {
  for (rgnC_Region const& region : regions) {
    Count* const count = Find(region);
    if (count == nullptr) {
      byName_[region.name].push_back({region, 1});
    } else {
      ++count->uses;
    }
  }
}

cls_xoList<rgnC_Region> kprC_RegionUse::Drop(cls_xoList<rgnC_Region> const& regions) {
  for (rgnC_Region const& region : regions) {
    if (Count* const count = Find(region)) {
      --count->uses;
    }
  }
  return Unused(regions);
}

cls_xoList<rgnC_Region> kprC_RegionUse::Unused(cls_xoList<rgnC_Region> const& regions) const {
  cls_xoList<rgnC_Region> unused;
  for (rgnC_Region const& region : regions) {
    Count const* const count = const_cast<kprC_RegionUse*>(this)->Find(region);
    if (count == nullptr || count->uses <= 0) {
      unused.Append(region);
    }
  }
  return unused;
}
