#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <map>
#include <utility>

#include "cow_Map.h"

/// Ordered map with the interface of cow_Map that shares nothing: copying it costs O(n), a change never copies.
///
/// References stay good until their entry is removed; a walk is ascending and survives insertions.
template <class K, class V>
class omi_Btree {
  using Entries = std::map<K, V, std::less<>>;

 public:
  using key_type = K;
  using mapped_type = V;
  using value_type = cow_MapEntry<K, V>;

  class const_iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using iterator_concept = std::forward_iterator_tag;
    using value_type = cow_MapEntry<K, V>;
    using difference_type = std::ptrdiff_t;
    using reference = value_type;
    using pointer = value_type;

    const_iterator() = default;
    explicit const_iterator(typename Entries::const_iterator place) : place_(place) {}
    value_type operator*() const { return {place_->first, place_->second}; }
    pointer operator->() const { return **this; }
    const_iterator& operator++() {
      ++place_;
      return *this;
    }
    const_iterator operator++(int) { return const_iterator(place_++); }
    friend bool operator==(const_iterator const&, const_iterator const&) = default;

   private:
    typename Entries::const_iterator place_;
  };
  using iterator = const_iterator;

  omi_Btree() = default;
  /// Inserts the entries in their order, so the last of several with one key stays.
  omi_Btree(std::initializer_list<std::pair<K, V>> entries) {
    for (auto const& [key, value] : entries) Insert(key, value);
  }

  void Swap(omi_Btree& other) noexcept { entries_.swap(other.entries_); }

  int Size() const noexcept { return static_cast<int>(entries_.size()); }
  bool IsEmpty() const noexcept { return entries_.empty(); }

  /// The value of `key`, or null.
  V const* Find(K const& key) const {
    auto const found = entries_.find(key);
    return found == entries_.end() ? nullptr : &found->second;
  }
  bool IsMember(K const& key) const { return Find(key) != nullptr; }
  /// The value of `key`. Throws cow_KeyError if there is none.
  V const& ConstGet(K const& key) const {
    V const* const value = Find(key);
    if (value == nullptr) cow_KeyError::Raise();
    return *value;
  }
  /// The value of `key` for writing. Throws cow_KeyError if there is none.
  V& Get(K const& key) { return const_cast<V&>(ConstGet(key)); }

  /// Enters `value` under `key`, in place of the value that the key may have had. Always true: the map took it.
  bool Insert(K const& key, V value) {
    entries_.insert_or_assign(key, std::move(value));
    return true;
  }
  /// Removes the entry of `key`; false if there is none.
  bool Remove(K const& key) {
    auto const found = entries_.find(key);
    if (found == entries_.end()) return false;
    entries_.erase(found);
    return true;
  }
  void Clear() noexcept { entries_.clear(); }

  const_iterator begin() const { return const_iterator(entries_.begin()); }
  const_iterator end() const { return const_iterator(entries_.end()); }

  friend bool operator==(omi_Btree const&, omi_Btree const&) = default;

 private:
  Entries entries_;
};
