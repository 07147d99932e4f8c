#pragma once

#include "cow_KeyError.h"
#include "cow_MapNode.h"

#include <initializer_list>
#include <iterator>

/// An entry of a map as a walk sees it: references into the map.
template <class K, class V>
struct cow_MapEntry
{
  K const& key;
  V const& value;

  cow_MapEntry const* operator->() const noexcept { return this; }
};

/// Walks the entries of a map in ascending key order. Good until the map is changed or gone.
template <class K, class V>
class cow_MapConstIterator
{
  using Node = cow_MapNode<K, V>;
  using Leaf = cow_MapLeaf<K, V>;
  using Branch = cow_MapBranch<K, V>;

 public:
  using iterator_category = std::input_iterator_tag;
  using iterator_concept = std::forward_iterator_tag;
  using value_type = cow_MapEntry<K, V>;
  using difference_type = std::ptrdiff_t;
  using reference = value_type;
  using pointer = value_type;

  cow_MapConstIterator() noexcept = default;

  /// Stands on the first entry below `root`, which may be null.
  explicit cow_MapConstIterator(Node const* root) noexcept
  {
    if (root) Descend(root);
  }

  value_type operator*() const noexcept { return {leaf_->keys[place_], leaf_->values[place_]}; }
  pointer operator->() const noexcept { return **this; }

  cow_MapConstIterator& operator++() noexcept
  {
    if (++place_ == leaf_->count) NextLeaf();
    return *this;
  }

  cow_MapConstIterator operator++(int) noexcept
  {
    auto const before = *this;
    ++*this;
    return before;
  }

  friend bool operator==(cow_MapConstIterator const& a, cow_MapConstIterator const& b) noexcept
  {
    return a.leaf_ == b.leaf_ && a.place_ == b.place_;
  }

 private:
  struct Step
  {
    Branch const* branch;
    int place;
  };

  void Descend(Node const* node) noexcept
  {
    for (; !node->isLeaf; node = node->AsBranch().nodes[0]) steps_[depth_++] = {&node->AsBranch(), 0};
    leaf_ = &node->AsLeaf();
    place_ = 0;
  }

  void NextLeaf() noexcept
  {
    for (; depth_ > 0; --depth_) {
      Step& step = steps_[depth_ - 1];
      if (++step.place < step.branch->count) return Descend(step.branch->nodes[step.place]);
    }
    leaf_ = nullptr;
    place_ = 0;
  }

  // Nodes are at least half full, so this depth is beyond any number of entries that an int can tell.
  Step steps_[12];
  int depth_ = 0;
  Leaf const* leaf_ = nullptr;
  int place_ = 0;
};

/// Ordered map as a tree of counted nodes, whose copies share all nodes that neither has changed since.
///
/// Copying a map costs O(1). Look-ups and changes cost O(log n) and compare keys by `operator<` only, about log2(n)
/// times. A change copies the shared nodes on the way from the root to the entry and no other, but for a neighbour that
/// a removal evens out. References and iterators are good until the map changes; to walk a map while it is edited, walk
/// a copy. An operation that throws leaves the content as it was. One thread: the counters are plain integers.
template <class K, class V>
class cow_Btree
{
  using Node = cow_MapNode<K, V>;
  using Leaf = cow_MapLeaf<K, V>;
  using Branch = cow_MapBranch<K, V>;

 public:
  using key_type = K;
  using mapped_type = V;
  using value_type = cow_MapEntry<K, V>;
  using const_iterator = cow_MapConstIterator<K, V>;
  using iterator = const_iterator;

  cow_Btree() noexcept = default;

  /// Inserts the entries in their order, so the last of several with one key stays.
  cow_Btree(std::initializer_list<std::pair<K, V>> entries)
  {
    cow_Btree map;
    for (auto const& [key, value] : entries) map.Insert(key, value);
    Swap(map);
  }

  cow_Btree(cow_Btree const& other) noexcept : root_(Node::Share(other.root_)), size_(other.size_) {}
  cow_Btree(cow_Btree&& other) noexcept { Swap(other); }
  ~cow_Btree() { Node::Drop(root_); }

  cow_Btree& operator=(cow_Btree const& other) noexcept
  {
    cow_Btree(other).Swap(*this);
    return *this;
  }

  cow_Btree& operator=(cow_Btree&& other) noexcept
  {
    cow_Btree(std::move(other)).Swap(*this);
    return *this;
  }

  void Swap(cow_Btree& other) noexcept
  {
    std::swap(root_, other.root_);
    std::swap(size_, other.size_);
  }

  /// Number of entries.
  int Size() const noexcept { return size_; }
  bool IsEmpty() const noexcept { return size_ == 0; }

  /// The value of `key`, or null.
  V const* Find(K const& key) const
  {
    if (!root_) return nullptr;
    Node const* node = root_;
    while (!node->isLeaf) node = node->AsBranch().nodes[node->AsBranch().Search(key)];
    Leaf const& leaf = node->AsLeaf();
    int const place = leaf.Search(key);
    return leaf.HasAt(place, key) ? &leaf.values[place] : nullptr;
  }

  bool IsMember(K const& key) const { return Find(key) != nullptr; }

  /// The value of `key`. @throws cow_KeyError if there is none.
  V const& ConstGet(K const& key) const
  {
    V const* const value = Find(key);
    if (!value) cow_KeyError::Raise();
    return *value;
  }

  /// The value of `key` for writing. @throws cow_KeyError if there is none.
  V& Get(K const& key)
  {
    // Looked up first, because an absent key must not cost copies.
    if (!root_) cow_KeyError::Raise();
    Node* node = root_;
    bool shared = node->counter > 1;
    while (!node->isLeaf) {
      node = node->AsBranch().nodes[node->AsBranch().Search(key)];
      shared = shared || node->counter > 1;
    }
    int const place = node->AsLeaf().Search(key);
    if (!node->AsLeaf().HasAt(place, key)) cow_KeyError::Raise();
    return (shared ? IsolateLeaf(key) : node->AsLeaf()).values[place];
  }

  /// Enters `value` under `key`, in place of the value that the key may have had. Always true: the map took it.
  ///
  /// Key and value may come from this map.
  bool Insert(K const& key, V const& value) { return InsertReady(key, value); }
  bool Insert(K const& key, V&& value) { return InsertReady(key, std::move(value)); }

  /// Removes the entry of `key`, which may come from this map; false if there is none.
  bool Remove(K const& key)
  {
    if (!IsMember(key)) return false;
    if (size_ == 1) {
      Clear();
      return true;
    }
    K const wanted(key);
    Node::Isolate(root_);
    Node* node = root_;
    while (!node->isLeaf) {
      Branch& branch = node->AsBranch();
      int const place = branch.Enrich(branch.Search(wanted));
      node = branch.nodes[place];
      if (branch.count == 1) RemoveTop();
    }
    Leaf& leaf = node->AsLeaf();
    int const place = leaf.Search(wanted);
    leaf.keys.Remove(place, leaf.count);
    leaf.values.Remove(place, leaf.count);
    --leaf.count;
    --size_;
    return true;
  }

  void Clear() noexcept { cow_Btree().Swap(*this); }

  /// True if both share all their nodes, and so are equal without a look at the entries.
  bool Identical(cow_Btree const& other) const noexcept { return root_ == other.root_; }

  const_iterator begin() const noexcept { return const_iterator(root_); }
  const_iterator end() const noexcept { return {}; }

  /// True if both have the same keys with equal values.
  friend bool operator==(cow_Btree const& a, cow_Btree const& b)
    requires requires(V const& v) { v == v; }
  {
    if (a.size_ != b.size_) return false;
    if (a.Identical(b)) return true;
    for (auto i = a.begin(), j = b.begin(); i != a.end(); ++i, ++j) {
      if (i->key < j->key || j->key < i->key || !(i->value == j->value)) return false;
    }
    return true;
  }

 private:
  /// The leaf in which `key` belongs, private with all nodes on the way there.
  Leaf& IsolateLeaf(K const& key)
  {
    Node** place = &root_;
    for (;;) {
      Node::Isolate(*place);
      if ((*place)->isLeaf) return (*place)->AsLeaf();
      Branch& branch = (*place)->AsBranch();
      place = &branch.nodes[branch.Search(key)];
    }
  }

  template <class U>
  bool InsertReady(K const& key, U&& value)
  {
    typename Leaf::Keys::Ready readyKey(key);
    typename Leaf::Values::Ready readyValue(std::forward<U>(value));
    Leaf& leaf = LeafWithRoom(readyKey.Value());
    int const place = leaf.Search(readyKey.Value());
    if (leaf.HasAt(place, readyKey.Value())) {
      leaf.values.Replace(place, readyValue);
      return true;
    }
    leaf.keys.Insert(place, leaf.count, readyKey);
    leaf.values.Insert(place, leaf.count, readyValue);
    ++leaf.count;
    ++size_;
    return true;
  }

  /// The private leaf in which `key` belongs; full nodes on the way there are split.
  Leaf& LeafWithRoom(K const& key)
  {
    if (!root_) root_ = new Leaf;
    Node::Isolate(root_);
    if (root_->IsFull()) SplitRoot();
    Node* node = root_;
    while (!node->isLeaf) {
      Branch& branch = node->AsBranch();
      int place = branch.Search(key);
      Node::Isolate(branch.nodes[place]);
      if (branch.nodes[place]->IsFull()) {
        branch.Split(place);
        if (!(key < branch.keys[place])) ++place;
      }
      node = branch.nodes[place];
    }
    return node->AsLeaf();
  }

  void SplitRoot()
  {
    auto* const top = new Branch(root_);
    try {
      top->Split(0);
    } catch (...) {
      top->nodes[0] = nullptr;
      Node::Drop(top);
      throw;
    }
    root_ = top;
  }

  /// Puts the only node of the root in its place.
  void RemoveTop() noexcept
  {
    Branch& top = root_->AsBranch();
    root_ = std::exchange(top.nodes[0], nullptr);
    Node::Drop(&top);
  }

  Node* root_ = nullptr;
  int size_ = 0;
};

/// The ordered map of the model classes; see cow_Btree.
template <class K, class V>
class cow_Map : public cow_Btree<K, V>
{
 public:
  using cow_Btree<K, V>::cow_Btree;
};
