#include "dbc_OldClassVersion.h"

#include <algorithm>
#include <string>

#include "nex_Exception.h"

dbc_OldClassVersion::~dbc_OldClassVersion() = default;
void dbc_OldClassVersion::ClassesToDelete(dbc_DatabaseConverter&) {}
void dbc_OldClassVersion::ClassesToRename(dbc_DatabaseConverter&) {}
void dbc_OldClassVersion::TablesToRename(dbc_DatabaseConverter&) {}

namespace {

[[noreturn]] void RefuseOldClass(std::string const& text) {
  nex_PrimException<cow_String, 3>(cow_String(text)).Throw(__FILE__, __LINE__);
}

}  // namespace

void dbc_OldClassRegistrar::Register(cow_CountedHld<dbc_OldClassVersion>* holder, unsigned int group) {
  if (group != 1 && group != 4 && group != 5) {
    RefuseOldClass("No group of old classes: " + std::to_string(group) + ".");
  }
  entries_.push_back({*holder, group});
  declared_ = false;
}

void dbc_OldClassRegistrar::Unregister(dbc_OldClassVersion const* version) {
  std::erase_if(entries_, [&](Entry const& entry) { return entry.version.GetPtr() == version; });
  declared_ = false;
}

/// What old classes declare follows from the present classes, so it is asked for when all of these are there.
void dbc_OldClassRegistrar::Declare() {
  if (declared_) {
    return;
  }
  byVersion_.clear();
  for (Entry& entry : entries_) {
    entry.declared = std::make_unique<cls_ClassRegistrar>();
    entry.version.GetRef().InitializeMetadata(*entry.declared);
    if (entry.declared->All().empty()) {
      RefuseOldClass("An old class declares nothing.");
    }
    entry.metadata = entry.declared->All().begin()->second.get();
    auto const& key = std::pair(entry.metadata->TypeId(), entry.metadata->Version());
    if (!byVersion_.emplace(key, entry.metadata).second) {
      RefuseOldClass(std::string("Class ") + entry.metadata->Name().CStr() + " has its version " +
                     std::to_string(entry.metadata->Version()) + " twice.");
    }
  }
  std::stable_sort(entries_.begin(), entries_.end(), [](Entry const& a, Entry const& b) {
    return std::pair(a.metadata->Version(), a.group) < std::pair(b.metadata->Version(), b.group);
  });
  declared_ = true;
}

std::vector<dbc_OldClassRegistrar::Entry> const& dbc_OldClassRegistrar::InOrder() {
  Declare();
  return entries_;
}

cls_ClassMetadata const* dbc_OldClassRegistrar::Find(unsigned int typeId, int version) {
  Declare();
  auto const found = byVersion_.find({typeId, version});
  return found == byVersion_.end() ? nullptr : found->second;
}

cls_ClassMetadata const* dbc_OldClassRegistrar::FindFrom(unsigned int typeId, int version) {
  Declare();
  auto const found = byVersion_.lower_bound({typeId, version});
  return found == byVersion_.end() || found->first.first != typeId ? nullptr : found->second;
}

std::vector<int> dbc_OldClassRegistrar::Versions(unsigned int typeId) {
  Declare();
  std::vector<int> versions;
  auto const end = byVersion_.lower_bound({typeId + 1, 0});
  for (auto found = byVersion_.lower_bound({typeId, 0}); found != end; ++found) {
    versions.push_back(found->first.second);
  }
  return versions;
}
