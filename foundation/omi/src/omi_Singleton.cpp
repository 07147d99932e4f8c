#include "omi_Singleton.h"

namespace {
omi_SingletonRegistry* currentRegistry = nullptr;
}

omi_SingletonRegistry::omi_SingletonRegistry() noexcept {
  if (currentRegistry == nullptr) currentRegistry = this;
}

omi_SingletonRegistry::~omi_SingletonRegistry() {
  if (currentRegistry == this) currentRegistry = nullptr;
}

omi_SingletonRegistry* omi_SingletonRegistry::Current() noexcept { return currentRegistry; }

void omi_SingletonRegistry::Add(char const* typeName, void* singleton) {
  byName_.insert_or_assign(typeName, singleton);
}

void omi_SingletonRegistry::Remove(char const* typeName) {
  auto const found = byName_.find(typeName);
  if (found != byName_.end()) byName_.erase(found);
}

void* omi_SingletonRegistry::Find(char const* typeName) const {
  auto const found = byName_.find(typeName);
  return found == byName_.end() ? nullptr : found->second;
}
