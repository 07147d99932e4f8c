#pragma once

#include "mem_Allocation.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

/// Up to `capacity` elements without a gap, in place. Its owner keeps their number.
///
/// Once an element is in, no move within or between slots can throw: types whose own move might are held by pointer.
template <class T, int capacity>
class cow_MapSlots
{
  static constexpr bool inPlace = std::is_nothrow_move_constructible_v<T>;
  using Stored = std::conditional_t<inPlace, T, T*>;

 public:
  T const& operator[](int i) const noexcept { return const_cast<cow_MapSlots&>(*this)[i]; }
  T& operator[](int i) noexcept
  {
    if constexpr (inPlace) return At(i);
    else return *At(i);
  }

  /// Copies all `count` elements of `other` into these empty slots; copies none if one fails.
  void CopyFrom(cow_MapSlots const& other, int count)
  {
    int done = 0;
    try {
      for (; done < count; ++done) Put(done, other[done]);
    } catch (...) {
      DestroyAll(done);
      throw;
    }
  }

  void DestroyAll(int count) noexcept
  {
    while (count > 0) Destroy(--count);
  }

  /// Something to insert later, when nothing may fail any more.
  class Ready
  {
   public:
    template <class U>
      requires(!std::same_as<std::remove_cvref_t<U>, Ready>)
    explicit Ready(U&& value) : stored_(Make(std::forward<U>(value)))
    {
    }
    Ready(Ready const&) = delete;
    Ready& operator=(Ready const&) = delete;
    ~Ready()
    {
      if constexpr (!inPlace) delete stored_;
    }

    T const& Value() const noexcept
    {
      if constexpr (inPlace) return stored_;
      else return *stored_;
    }

   private:
    friend class cow_MapSlots;
    Stored Take() noexcept
    {
      if constexpr (inPlace) return std::move(stored_);
      else return std::exchange(stored_, nullptr);
    }
    Stored stored_;
  };

  /// Inserts before element `i` of `count`.
  void Insert(int i, int count, Ready& ready) noexcept
  {
    for (int j = count; j > i; --j) Relocate(At(j - 1), RawAt(j));
    ::new (RawAt(i)) Stored(ready.Take());
  }

  void Replace(int i, Ready& ready) noexcept
  {
    Destroy(i);
    ::new (RawAt(i)) Stored(ready.Take());
  }

  /// Removes element `i` of `count`.
  void Remove(int i, int count) noexcept
  {
    Destroy(i);
    for (int j = i + 1; j < count; ++j) Relocate(At(j), RawAt(j - 1));
  }

  /// Moves `count` elements from place `from` on to place `to` of `target`, which is free there.
  void MoveTo(int from, int count, cow_MapSlots& target, int to) noexcept
  {
    for (int j = 0; j < count; ++j) Relocate(At(from + j), target.RawAt(to + j));
  }

  /// Moves element `i` of `count` to before element `to` of the `targetCount` of `target`.
  void MoveOne(int i, int count, cow_MapSlots& target, int to, int targetCount) noexcept
  {
    for (int j = targetCount; j > to; --j) Relocate(target.At(j - 1), target.RawAt(j));
    Relocate(At(i), target.RawAt(to));
    for (int j = i + 1; j < count; ++j) Relocate(At(j), RawAt(j - 1));
  }

 private:
  template <class U>
  static Stored Make(U&& value)
  {
    if constexpr (inPlace) return Stored(std::forward<U>(value));
    else return new T(std::forward<U>(value));
  }

  void Put(int i, T const& value) { ::new (RawAt(i)) Stored(Make(value)); }

  void Destroy(int i) noexcept
  {
    if constexpr (inPlace) std::destroy_at(&At(i));
    else delete At(i);
  }

  static void Relocate(Stored& from, void* to) noexcept
  {
    ::new (to) Stored(std::move(from));
    std::destroy_at(&from);
  }

  void* RawAt(int i) noexcept { return memory_ + static_cast<std::size_t>(i) * sizeof(Stored); }
  Stored& At(int i) noexcept { return *std::launder(static_cast<Stored*>(RawAt(i))); }

  alignas(Stored) std::byte memory_[static_cast<std::size_t>(capacity) * sizeof(Stored)];
};

template <class K, class V>
struct cow_MapLeaf;
template <class K, class V>
struct cow_MapBranch;

/// A node of a cow_Map: its own counter, and either entries in ascending key order (a leaf) or nodes with keys between
/// them (a branch). All leaves are at the same depth. Every node but the root is at least half full.
template <class K, class V>
struct cow_MapNode
{
  using Leaf = cow_MapLeaf<K, V>;
  using Branch = cow_MapBranch<K, V>;

  static constexpr int order = 16;  ///< Most entries of a leaf, most nodes below a branch.
  static constexpr int least = order / 2;

  explicit cow_MapNode(bool leaf) noexcept : isLeaf(leaf) {}
  cow_MapNode(cow_MapNode const&) = delete;
  cow_MapNode& operator=(cow_MapNode const&) = delete;

  Leaf& AsLeaf() noexcept { return static_cast<Leaf&>(*this); }
  Leaf const& AsLeaf() const noexcept { return static_cast<Leaf const&>(*this); }
  Branch& AsBranch() noexcept { return static_cast<Branch&>(*this); }
  Branch const& AsBranch() const noexcept { return static_cast<Branch const&>(*this); }

  bool IsFull() const noexcept { return count == order; }

  static cow_MapNode* Share(cow_MapNode* node) noexcept
  {
    if (node) ++node->counter;
    return node;
  }

  /// Gives up a share; the last one deletes the node.
  static void Drop(cow_MapNode* node) noexcept
  {
    if (!node || --node->counter > 0) return;
    if (node->isLeaf) delete &node->AsLeaf();
    else delete &node->AsBranch();
  }

  /// Makes the node at `place` private to its holder.
  static void Isolate(cow_MapNode*& place)
  {
    if (place->counter == 1) return;
    cow_MapNode* const copy = place->isLeaf ? static_cast<cow_MapNode*>(new Leaf(place->AsLeaf()))
                                            : static_cast<cow_MapNode*>(new Branch(place->AsBranch()));
    --place->counter;
    place = copy;
  }

  int counter = 1;
  short count = 0;  ///< Entries, or nodes below.
  bool isLeaf;
};

/// A node with entries.
template <class K, class V>
struct cow_MapLeaf : cow_MapNode<K, V>, mem_AllocationOperators
{
  using Node = cow_MapNode<K, V>;
  using Keys = cow_MapSlots<K, Node::order>;
  using Values = cow_MapSlots<V, Node::order>;

  cow_MapLeaf() noexcept : Node(true) {}

  explicit cow_MapLeaf(cow_MapLeaf const& other) : Node(true)
  {
    keys.CopyFrom(other.keys, other.count);
    try {
      values.CopyFrom(other.values, other.count);
    } catch (...) {
      keys.DestroyAll(other.count);
      throw;
    }
    this->count = other.count;
  }

  ~cow_MapLeaf()
  {
    values.DestroyAll(this->count);
    keys.DestroyAll(this->count);
  }

  /// The place of the first entry whose key is not before `key`.
  int Search(K const& key) const
  {
    int first = 0;
    for (int left = this->count; left > 0;) {
      int const half = left / 2;
      if (keys[first + half] < key) {
        first += half + 1;
        left -= half + 1;
      } else {
        left = half;
      }
    }
    return first;
  }

  bool HasAt(int place, K const& key) const { return place < this->count && !(key < keys[place]); }

  Keys keys;
  Values values;
};

/// A node of nodes: keys[i] is after every key below nodes[i] and not after any below nodes[i + 1].
template <class K, class V>
struct cow_MapBranch : cow_MapNode<K, V>, mem_AllocationOperators
{
  using Node = cow_MapNode<K, V>;
  using Leaf = cow_MapLeaf<K, V>;
  using Keys = cow_MapSlots<K, Node::order>;

  /// Takes over the share of `only`.
  explicit cow_MapBranch(Node* only) noexcept : Node(false)
  {
    nodes[0] = only;
    this->count = 1;
  }

  explicit cow_MapBranch(cow_MapBranch const& other) : Node(false)
  {
    keys.CopyFrom(other.keys, other.count - 1);
    for (int i = 0; i < other.count; ++i) nodes[i] = Node::Share(other.nodes[i]);
    this->count = other.count;
  }

  ~cow_MapBranch()
  {
    keys.DestroyAll(this->count - 1);
    for (int i = 0; i < this->count; ++i) Node::Drop(nodes[i]);
  }

  /// The place of the node below which `key` belongs.
  int Search(K const& key) const
  {
    int first = 0;
    for (int left = this->count - 1; left > 0;) {
      int const half = left / 2;
      if (key < keys[first + half]) {
        left = half;
      } else {
        first += half + 1;
        left -= half + 1;
      }
    }
    return first;
  }

  /// Splits the full node `i` into two half full ones. @pre This branch is not full; it and the node are private.
  void Split(int i)
  {
    if (nodes[i]->isLeaf) SplitLeaf(i, nodes[i]->AsLeaf());
    else SplitBranch(i, nodes[i]->AsBranch());
  }

  /// Sees to it that node `i` can lose an entry: takes one from a neighbour or joins them. Gives the place at which the
  /// node stands then. @pre This branch is private and holds two nodes or more.
  int Enrich(int i)
  {
    if (nodes[i]->count > Node::least) {
      Node::Isolate(nodes[i]);
      return i;
    }
    int const left = i > 0 ? i - 1 : i;
    Node::Isolate(nodes[left]);
    Node::Isolate(nodes[left + 1]);
    if (nodes[left]->count + nodes[left + 1]->count <= Node::order) {
      Join(left);
      return left;
    }
    if (left == i) TakeFromRight(left);
    else TakeFromLeft(left);
    return i;
  }

  Keys keys;
  Node* nodes[Node::order];

 private:
  void SplitLeaf(int i, Leaf& node)
  {
    int const kept = node.count / 2;
    typename Keys::Ready key(node.keys[kept]);
    auto* const added = new Leaf;
    node.keys.MoveTo(kept, node.count - kept, added->keys, 0);
    node.values.MoveTo(kept, node.count - kept, added->values, 0);
    added->count = static_cast<short>(node.count - kept);
    node.count = static_cast<short>(kept);
    InsertNode(i, key, added);
  }

  void SplitBranch(int i, cow_MapBranch& node)
  {
    int const kept = node.count / 2;
    typename Keys::Ready key(node.keys[kept - 1]);
    auto* const added = new cow_MapBranch(nullptr);
    node.keys.MoveTo(kept, node.count - kept - 1, added->keys, 0);
    node.keys.Remove(kept - 1, kept);
    std::copy(node.nodes + kept, node.nodes + node.count, added->nodes);
    added->count = static_cast<short>(node.count - kept);
    node.count = static_cast<short>(kept);
    InsertNode(i, key, added);
  }

  void InsertNode(int i, typename Keys::Ready& key, Node* added) noexcept
  {
    keys.Insert(i, this->count - 1, key);
    std::copy_backward(nodes + i + 1, nodes + this->count, nodes + this->count + 1);
    nodes[i + 1] = added;
    ++this->count;
  }

  /// Moves all of node `i + 1` into node `i`; both are private.
  void Join(int i) noexcept
  {
    Node* const gone = nodes[i + 1];
    if (gone->isLeaf) {
      Leaf& target = nodes[i]->AsLeaf();
      gone->AsLeaf().keys.MoveTo(0, gone->count, target.keys, target.count);
      gone->AsLeaf().values.MoveTo(0, gone->count, target.values, target.count);
      keys.Remove(i, this->count - 1);
    } else {
      cow_MapBranch& target = nodes[i]->AsBranch();
      cow_MapBranch& source = gone->AsBranch();
      keys.MoveOne(i, this->count - 1, target.keys, target.count - 1, target.count - 1);
      source.keys.MoveTo(0, source.count - 1, target.keys, target.count);
      std::copy(source.nodes, source.nodes + source.count, target.nodes + target.count);
    }
    nodes[i]->count = static_cast<short>(nodes[i]->count + gone->count);
    // What it held has moved on; a branch counts one node more than keys.
    if (gone->isLeaf) {
      gone->count = 0;
    } else {
      gone->count = 1;
      gone->AsBranch().nodes[0] = nullptr;
    }
    Node::Drop(gone);
    std::copy(nodes + i + 2, nodes + this->count, nodes + i + 1);
    --this->count;
  }

  void TakeFromRight(int i)
  {
    if (nodes[i]->isLeaf) {
      Leaf& target = nodes[i]->AsLeaf();
      Leaf& source = nodes[i + 1]->AsLeaf();
      typename Keys::Ready key(source.keys[1]);
      source.keys.MoveOne(0, source.count, target.keys, target.count, target.count);
      source.values.MoveOne(0, source.count, target.values, target.count, target.count);
      keys.Replace(i, key);
    } else {
      cow_MapBranch& target = nodes[i]->AsBranch();
      cow_MapBranch& source = nodes[i + 1]->AsBranch();
      keys.MoveTo(i, 1, target.keys, target.count - 1);
      source.keys.MoveTo(0, 1, keys, i);
      source.keys.MoveTo(1, source.count - 2, source.keys, 0);
      target.nodes[target.count] = source.nodes[0];
      std::copy(source.nodes + 1, source.nodes + source.count, source.nodes);
    }
    ++nodes[i]->count;
    --nodes[i + 1]->count;
  }

  void TakeFromLeft(int i)
  {
    if (nodes[i]->isLeaf) {
      Leaf& source = nodes[i]->AsLeaf();
      Leaf& target = nodes[i + 1]->AsLeaf();
      int const last = source.count - 1;
      typename Keys::Ready key(source.keys[last]);
      source.keys.MoveOne(last, source.count, target.keys, 0, target.count);
      source.values.MoveOne(last, source.count, target.values, 0, target.count);
      keys.Replace(i, key);
    } else {
      cow_MapBranch& source = nodes[i]->AsBranch();
      cow_MapBranch& target = nodes[i + 1]->AsBranch();
      // Told that the key is the last one, MoveOne leaves the gap that is filled next.
      keys.MoveOne(i, i + 1, target.keys, 0, target.count - 1);
      source.keys.MoveTo(source.count - 2, 1, keys, i);
      std::copy_backward(target.nodes, target.nodes + target.count, target.nodes + target.count + 1);
      target.nodes[0] = source.nodes[source.count - 1];
    }
    --nodes[i]->count;
    ++nodes[i + 1]->count;
  }
};
