#pragma once

#include "mdl_Extension.h"
#include "nex_Exception.h"

/// Objects by a running number, and the numbers by key. A number, once given, is not given to another object.
template <class K, class T>
class TVO_API mdl_IdRepositoryOfCows : public mdl_Repository {
 public:
  using Holder = cow_COW<T, cow_Virtual<T>>;

  static constexpr unsigned int TypeId() noexcept { return cls_InstanceOf<mdl_IdRepositoryOfCows>::typeId; }
  static cls_AttributeTable const& Attributes();
  static void InitializeMetadata(cls_ClassRegistrar& registrar) { cls_Register<mdl_IdRepositoryOfCows>(registrar); }
  mdl_IdRepositoryOfCows* Copy() const override = 0;

  int Size() const override { return idToObj_.Size(); }
  bool IsEmpty() const { return Size() == 0; }
  virtual bool Insert(K const& key, T const& object) { return Insert(key, object.Copy()); }
  /// Takes ownership. An object under that key is replaced and keeps its number.
  virtual bool Insert(K const& key, T* object) { return Put(key, Holder(object)); }
  virtual bool Remove(K const& key);
  virtual void Clear();
  virtual bool Rename(K const& oldKey, K const& newKey);
  bool IsMember(K const& key) const { return nameToID_.IsMember(key); }
  bool IsMember(unsigned int id) const { return idToObj_.IsMember(id); }

  /// The object; an unknown key or number is refused.
  T const& ConstGet(K const& key) const { return Held(key).ConstGet(); }
  T const& ConstGet(unsigned int id) const { return Known(idToObj_.Find(id), id).ConstGet(); }
  /// The object, made exclusive for writing.
  T& Get(K const& key) { return Get(GetID(key)); }
  T& Get(unsigned int id) {
    Known(idToObj_.Find(id), id);
    return idToObj_.Get(id).Get();
  }
  /// The holder itself, to share the object with others.
  Holder const& Held(K const& key) const { return Known(idToObj_.Find(GetID(key)), key); }

  unsigned int GetID(K const& key) const { return Known(nameToID_.Find(key), key); }
  K GetKey(unsigned int id) const;
  /// Keys in ascending order; a subclass may have an order of its own.
  virtual cow_List<K> Keys() const;
  cow_List<Holder> Values() const;
  cow_List<unsigned int> IDs() const;
  mdl_IdRepositoryOfCows* DeepCopy() const override {
    cls_DeepCopyContext context;
    return cls_DeepCopyOf(*this, context);
  }

 protected:
  using NameToId = cls_IdentifiedMap<K, unsigned int, struct mdl_NameToIdTag>;
  using IdToObj = cls_xcBtree<unsigned int, Holder, T>;

  bool Put(K const& key, Holder const& holder);

  unsigned int lastID_ = 0;
  NameToId nameToID_;
  IdToObj idToObj_;

 private:
  template <class Found, class Key>
  static Found const& Known(Found const* found, Key const& key) {
    if (found == nullptr) {
      nex_CmdException<cow_String, 1>(Words(key)).Throw(__FILE__, __LINE__);
    }
    return *found;
  }
  /// A database may hold a last number below one that is in use.
  unsigned int FreshId() {
    do {
      ++lastID_;
    } while (idToObj_.IsMember(lastID_));
    return lastID_;
  }
  static cow_String Words(cow_String const& key) { return key; }
  static cow_String Words(unsigned int id) { return cow_String(std::to_string(id)); }
};

template <class K, class T>
cls_AttributeTable const& mdl_IdRepositoryOfCows<K, T>::Attributes() {
  using Self = mdl_IdRepositoryOfCows<K, T>;
  static auto const table = cls_Describe<Self, mdl_Repository>(cls_InstanceOf<Self>::name, 203)
                                .Attribute("lastID", &Self::lastID_)
                                .Attribute("nameToID", &Self::nameToID_)
                                .Attribute("IDToObj", &Self::idToObj_);
  return table;
}

template <class K, class T>
bool mdl_IdRepositoryOfCows<K, T>::Put(K const& key, Holder const& holder) {
  unsigned int const* const known = nameToID_.Find(key);
  unsigned int const id = known == nullptr ? FreshId() : *known;
  nameToID_.Insert(key, id);
  return idToObj_.Insert(id, holder);
}

template <class K, class T>
bool mdl_IdRepositoryOfCows<K, T>::Remove(K const& key) {
  unsigned int const* const known = nameToID_.Find(key);
  if (known == nullptr) {
    return false;
  }
  idToObj_.Remove(*known);
  return nameToID_.Remove(key);
}

template <class K, class T>
void mdl_IdRepositoryOfCows<K, T>::Clear() {
  nameToID_.Clear();
  idToObj_.Clear();
}

template <class K, class T>
bool mdl_IdRepositoryOfCows<K, T>::Rename(K const& oldKey, K const& newKey) {
  unsigned int const* const known = nameToID_.Find(oldKey);
  if (known == nullptr || IsMember(newKey)) {
    return false;
  }
  unsigned int const id = *known;
  nameToID_.Remove(oldKey);
  return nameToID_.Insert(newKey, id);
}

template <class K, class T>
K mdl_IdRepositoryOfCows<K, T>::GetKey(unsigned int id) const {
  for (auto const& entry : nameToID_) {
    if (entry.value == id) {
      return entry.key;
    }
  }
  nex_CmdException<cow_String, 1>(Words(id)).Throw(__FILE__, __LINE__);
}

template <class K, class T>
cow_List<K> mdl_IdRepositoryOfCows<K, T>::Keys() const {
  cow_List<K> keys(Size());
  for (auto const& entry : nameToID_) {
    keys.Append(entry.key);
  }
  return keys;
}

template <class K, class T>
cow_List<typename mdl_IdRepositoryOfCows<K, T>::Holder> mdl_IdRepositoryOfCows<K, T>::Values() const {
  cow_List<Holder> values(Size());
  for (auto const& entry : idToObj_) {
    values.Append(entry.value);
  }
  return values;
}

template <class K, class T>
cow_List<unsigned int> mdl_IdRepositoryOfCows<K, T>::IDs() const {
  cow_List<unsigned int> ids(Size());
  for (auto const& entry : idToObj_) {
    ids.Append(entry.key);
  }
  return ids;
}
