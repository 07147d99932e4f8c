#pragma once

#include "cls_Containers.h"
#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "typ_FoundationTypes.h"

/// Something that hangs on a model under a name.
class TVO_API mdl_Extension : public cls_Persistent {
  CLS_ABSTRACT(mdl, mdl_Extension)

 public:
  /// What hangs there: the object itself, or what a wrapper wraps.
  virtual mdl_Extension& GetValue() { return *this; }
  virtual mdl_Extension const& ConstGetValue() const { return *this; }
};

/// Base of the repositories of a model.
class TVO_API mdl_Repository : public mdl_Extension {
  CLS_ABSTRACT(mdl, mdl_Repository)

 public:
  virtual int Size() const = 0;
  /// A copy that shares nothing with this one; the caller owns it.
  virtual mdl_Repository* DeepCopy() const = 0;
};

/// Wraps a container so that a model can hold it; the copies that models take share the container until they edit it.
template <class T>
class TVO_API mdl_ExtensionWrapper final : public mdl_Extension {
  CLS_PERSISTENT_TEMPLATE(mdl_ExtensionWrapper)

 public:
  mdl_ExtensionWrapper() : extension(new T()) {}
  explicit mdl_ExtensionWrapper(T* container) : extension(container) {}
  mdl_Extension& GetValue() override { return extension.Get(); }
  mdl_Extension const& ConstGetValue() const override { return extension.ConstGet(); }

  cow_COW<T, cow_Virtual<T>> extension;
};

template <class T>
cls_AttributeTable const& mdl_ExtensionWrapper<T>::Attributes() {
  using Self = mdl_ExtensionWrapper<T>;
  static auto const table = cls_Describe<Self, mdl_Extension>(cls_InstanceOf<Self>::name, 203)
                                .Required("extension", &Self::extension);
  return table;
}

/// Objects by name, copied on write, as an attribute of the object that they belong to.
template <class T>
using mdl_CowsByName = cls_xcBtree<cow_String, cow_COW<T, cow_Virtual<T>>, T>;

/// A repository of objects by key.
template <class K, class T>
class TVO_API mdl_MapOfCowsRepository final : public mdl_Repository {
  CLS_PERSISTENT_TEMPLATE(mdl_MapOfCowsRepository)

 public:
  using Holder = cow_COW<T, cow_Virtual<T>>;

  mdl_MapOfCowsRepository() = default;
  int Size() const override { return map.Size(); }
  mdl_MapOfCowsRepository* DeepCopy() const override {
    cls_DeepCopyContext context;
    return cls_DeepCopyOf(*this, context);
  }
  bool IsMember(K const& key) const { return map.IsMember(key); }
  T const& ConstGet(K const& key) const { return map.ConstGet(key).ConstGet(); }
  T& Get(K const& key) { return map.Get(key).Get(); }
  bool Insert(K const& key, T const& object) { return map.Insert(key, Holder(object)); }
  bool Remove(K const& key) { return map.Remove(key); }
  void Clear() { map.Clear(); }

  cls_xcBtree<K, Holder, T> map;
};

template <class K, class T>
cls_AttributeTable const& mdl_MapOfCowsRepository<K, T>::Attributes() {
  using Self = mdl_MapOfCowsRepository<K, T>;
  static auto const table =
      cls_Describe<Self, mdl_Repository>(cls_InstanceOf<Self>::name, 203).Attribute("map", &Self::map);
  return table;
}

/// The definitions of one kind that a model holds by name.
template <class T>
using mdl_MapString2ObjCow = mdl_MapOfCowsRepository<cow_String, T>;

/// The repository whose element classes the host supplies.
using mdl_ExtensionRepository = mdl_MapOfCowsRepository<cow_String, mdl_Extension>;
template <>
struct cls_InstanceOf<mdl_ExtensionRepository> {
  static constexpr char const* name = "mdl_MapOfCowsRepository";
  static constexpr unsigned int typeId = mdl_TypeId("mdl_MapOfCowsRepository");
};
extern template class mdl_MapOfCowsRepository<cow_String, mdl_Extension>;
