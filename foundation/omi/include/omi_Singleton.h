#pragma once

#include <cstdlib>
#include <map>
#include <string>
#include <typeinfo>

#include "TVOExport.h"

/// The singletons that stand, by the names of their types. A host that wants to see them makes one registry before they
/// are built; singletons enter and leave it by themselves, and work the same without one.
class TVO_API omi_SingletonRegistry {
 public:
  /// Becomes the process's registry unless there is one already.
  omi_SingletonRegistry() noexcept;
  ~omi_SingletonRegistry();
  omi_SingletonRegistry(omi_SingletonRegistry const&) = delete;
  omi_SingletonRegistry& operator=(omi_SingletonRegistry const&) = delete;

  /// The process's registry, or null.
  static omi_SingletonRegistry* Current() noexcept;

  void Add(char const* typeName, void* singleton);
  void Remove(char const* typeName);
  /// The omi_SingletonBase of this type name (std::type_info::name), or null.
  void* Find(char const* typeName) const;
  int Size() const noexcept { return static_cast<int>(byName_.size()); }

 private:
  std::map<std::string, void*, std::less<>> byName_;
};

/// Keeps the one instance of `T`, which derives from it (by way of omi_Singleton or thr_GlobalSingleton). Export `T` if
/// two libraries use it, so that they share the instance.
template <class T>
class TVO_API omi_SingletonBase {
 public:
  omi_SingletonBase(omi_SingletonBase const&) = delete;
  omi_SingletonBase& operator=(omi_SingletonBase const&) = delete;

  /// Ends the instance, if there is one; a later Instance() builds a new one.
  static void Finalize() {
    if (instance_ != nullptr) Delete();
  }
  /// Deletes the instance, as Finalize does.
  static void Delete() { delete static_cast<T*>(instance_); }

 protected:
  omi_SingletonBase() {
    if (auto* registry = omi_SingletonRegistry::Current()) registry->Add(typeid(T).name(), this);
    instance_ = this;
  }
  ~omi_SingletonBase() {
    if (instance_ != this) return;
    instance_ = nullptr;
    if (auto* registry = omi_SingletonRegistry::Current()) registry->Remove(typeid(T).name());
  }

  /// The instance, built on first use. A constructor that makes a second `T` on its way leaves two: no program can go on.
  static T& Obtain() {
    if (instance_ == nullptr) {
      T* const made = new T;
      if (instance_ != made) std::abort();
    }
    return static_cast<T&>(*instance_);
  }

 private:
  // Of the base's type, since it is set while the derived object is not yet one.
  static inline omi_SingletonBase* instance_ = nullptr;
};

/// The one instance of `T`, where `T` derives from omi_Singleton<T>. Not locked: built at start-up or on first use by the
/// thread that uses the model.
template <class T>
class TVO_API omi_Singleton : public omi_SingletonBase<T> {
 public:
  static T& Instance() { return omi_SingletonBase<T>::Obtain(); }

 protected:
  omi_Singleton() = default;
  ~omi_Singleton() = default;
};
