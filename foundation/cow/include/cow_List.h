#pragma once

#include "mem_Allocation.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

/// A block of a cow_List: its own counter, and behind it room for `1 << shift` elements.
///
/// Which of them are alive only the lists know that share the block; they all agree.
template <class T>
class cow_ListBlock
{
 public:
  static cow_ListBlock* New(int capacity)
  {
    if constexpr (alignof(T) > 16) {
      return ::new (::operator new(Size(capacity), std::align_val_t(alignof(T)))) cow_ListBlock;
    } else {
      return ::new (mem_OperatorNewThrow(Size(capacity))) cow_ListBlock;
    }
  }

  /// Frees the memory; the elements have been destroyed.
  static void Free(cow_ListBlock* block, int capacity) noexcept
  {
    if constexpr (alignof(T) > 16) ::operator delete(block, std::align_val_t(alignof(T)));
    else mem_OperatorDelete(block, Size(capacity));
  }

  T* Elements() noexcept { return reinterpret_cast<T*>(reinterpret_cast<char*>(this) + header); }

  int counter = 1;

 private:
  static constexpr std::size_t header = std::max(sizeof(int), alignof(T));

  static std::size_t Size(int capacity) noexcept { return header + static_cast<std::size_t>(capacity) * sizeof(T); }
};

/// The array of a cow_List's blocks: its own counter, and behind it `count` slots. Lists that are copies share it.
template <class T>
class cow_ListArray
{
 public:
  /// An array of null slots.
  static cow_ListArray* New(int count)
  {
    std::size_t const size = sizeof(cow_ListArray) + static_cast<std::size_t>(count) * sizeof(cow_ListBlock<T>*);
    void* const memory = mem_Malloc(size);
    if (!memory) throw std::bad_alloc();
    std::memset(memory, 0, size);
    return ::new (memory) cow_ListArray(count);
  }

  static void Free(cow_ListArray* array) noexcept { mem_Free(array); }

  cow_ListBlock<T>** Slots() noexcept { return reinterpret_cast<cow_ListBlock<T>**>(this + 1); }

  int counter = 1;
  int const count;

 private:
  explicit cow_ListArray(int slots) noexcept : count(slots) {}
};

/// Reads the elements of a cow_List in order. Good until the list is changed or gone, as its elements are.
template <class T>
class cow_ListConstIterator
{
 public:
  using iterator_category = std::forward_iterator_tag;
  using value_type = T;
  using difference_type = std::ptrdiff_t;
  using pointer = T const*;
  using reference = T const&;

  cow_ListConstIterator() noexcept = default;

  T const& operator*() const noexcept { return *element_; }
  T const* operator->() const noexcept { return element_; }

  cow_ListConstIterator& operator++() noexcept
  {
    if (++element_ == blockEnd_) LeaveBlock();
    return *this;
  }

  cow_ListConstIterator operator++(int) noexcept
  {
    auto const before = *this;
    ++*this;
    return before;
  }

  friend bool operator==(cow_ListConstIterator const& a, cow_ListConstIterator const& b) noexcept
  {
    return a.element_ == b.element_;
  }

  // Only behind the last element does an iterator stand at the end of a block, so a loop needs one comparison a turn.
  friend bool operator==(cow_ListConstIterator const& a, std::default_sentinel_t) noexcept
  {
    return a.element_ == a.blockEnd_;
  }

 private:
  template <class>
  friend class cow_List;
  using Block = cow_ListBlock<T>;

  cow_ListConstIterator(Block* const* block, Block* const* lastBlock, int shift, int place, int lastPlace) noexcept
      : lastBlock_(lastBlock), lastEnd_((*lastBlock)->Elements() + lastPlace), shift_(shift)
  {
    EnterBlock(block, place);
  }

  void LeaveBlock() noexcept
  {
    if (block_ != lastBlock_) EnterBlock(block_ + 1, 0);
  }

  void EnterBlock(Block* const* block, int place) noexcept
  {
    block_ = block;
    element_ = (*block)->Elements() + place;
    blockEnd_ = block == lastBlock_ ? lastEnd_ : (*block)->Elements() + (1 << shift_);
  }

  T const* element_ = nullptr;
  T const* blockEnd_ = nullptr;
  Block* const* block_ = nullptr;
  Block* const* lastBlock_ = nullptr;
  T const* lastEnd_ = nullptr;
  int shift_ = 0;
};

/// Types that FindMember and its kin can work with.
template <class T>
concept cow_Comparable = requires(T const& a, T const& b) { a == b; };

/// Ordered list in blocks, whose copies share storage until one of them is changed.
///
/// Reading is const and never copies. Every change first takes a private copy of the array of blocks, if that is
/// shared, and then of those blocks that it touches, if they are. Copying a list costs O(1); the first change
/// afterwards O(blocks) plus the elements of the touched blocks; Append and Prepend O(1) on average; InsertIndex and
/// RemoveIndex O(distance to the nearer end). Indexes start at 0; one out of range aborts. References and iterators
/// are good until the list changes. An operation that throws, because an element's copy or the memory failed, leaves a
/// valid list, and unless it says otherwise the same content. One thread: the counters are plain integers.
template <class T>
class cow_List
{
  using Block = cow_ListBlock<T>;
  using Array = cow_ListArray<T>;

 public:
  using value_type = T;
  using const_iterator = cow_ListConstIterator<T>;
  using iterator = const_iterator;
  using const_reference = T const&;
  using reference = const_reference;
  using size_type = int;
  using difference_type = std::ptrdiff_t;

  cow_List() noexcept = default;

  /// An empty list laid out for `expected` elements; see Initialize.
  explicit cow_List(int expected) { Initialize(expected); }

  cow_List(std::initializer_list<T> elements)
  {
    // The destructor does not run for a list whose constructor throws.
    cow_List list;
    for (T const& element : elements) list.Append(element);
    Swap(list);
  }

  cow_List(cow_List const& other) noexcept
      : length_(other.length_), shift_(other.shift_), head_(other.head_), array_(other.array_)
  {
    if (array_) ++array_->counter;
    other.CloseRoom();
  }

  cow_List(cow_List&& other) noexcept { Swap(other); }

  ~cow_List() { DropShare(); }

  cow_List& operator=(cow_List const& other) noexcept
  {
    if (this != &other) cow_List(other).Swap(*this);
    return *this;
  }

  cow_List& operator=(cow_List&& other) noexcept
  {
    cow_List(std::move(other)).Swap(*this);
    return *this;
  }

  void Swap(cow_List& other) noexcept
  {
    std::swap(length_, other.length_);
    std::swap(shift_, other.shift_);
    std::swap(head_, other.head_);
    std::swap(array_, other.array_);
    std::swap(next_, other.next_);
    std::swap(limit_, other.limit_);
  }

  /// Empties the list and lays it out for `expected` elements: larger blocks and all their slots at once.
  ///
  /// Large blocks are quick to fill and to copy whole, but a write into a shared one copies the whole block.
  void Initialize(int expected)
  {
    Clear();
    if (expected <= 0) return;
    shift_ = std::max(initialShift, static_cast<int>(std::bit_width(static_cast<unsigned>(expected))) - 1 - 3);
    ReplaceSlots(((expected - 1) >> shift_) + 1 + 16, 0);
  }

  int Length() const noexcept { return length_; }
  bool IsEmpty() const noexcept { return length_ == 0; }

  T const& ConstGet(int i) const
  {
    CheckIndex(i);
    return UncheckedConstGet(i);
  }

  T const& operator[](int i) const { return ConstGet(i); }

  /// @pre `i` is in range.
  T const& UncheckedConstGet(int i) const noexcept { return *Place(head_ + i); }

  T const& First() const { return ConstGet(0); }
  T const& Last() const { return ConstGet(length_ - 1); }

  const_iterator begin() const noexcept
  {
    if (length_ == 0) return {};
    int const end = head_ + length_;
    Block* const* const slots = array_->Slots();
    return {slots + (head_ >> shift_), slots + ((end - 1) >> shift_), shift_, head_ & Mask(), ((end - 1) & Mask()) + 1};
  }
  std::default_sentinel_t end() const noexcept { return {}; }

  /// True if both lists share their storage, and so are equal without a look at the elements.
  bool Identical(cow_List const& other) const noexcept
  {
    return array_ == other.array_ && head_ == other.head_ && length_ == other.length_;
  }

  /// True if another list shares any of the elements.
  bool IsShared() const noexcept
  {
    if (length_ == 0) return false;
    bool shared = array_->counter > 1;
    for (int slot = head_ >> shift_; !shared && slot <= (head_ + length_ - 1) >> shift_; ++slot) {
      shared = Slot(slot)->counter > 1;
    }
    return shared;
  }

  /// Element `i` for writing. It must not be used for that any more once the list has been copied.
  T& Get(int i)
  {
    CheckIndex(i);
    IsolateRange(i, i);
    return *Place(head_ + i);
  }

  /// The same without a test, for many elements in a row. @pre `i` is in range and IsolateRange() has made it private.
  T& UncheckedGet(int i) noexcept { return *Place(head_ + i); }

  /// Stores `x` at `i`.
  void Put(int i, T const& x) { Get(i) = x; }
  void Put(int i, T&& x) { Get(i) = std::move(x); }

  /// Makes the array of blocks private to this list. The blocks stay shared.
  void CopyArray()
  {
    if (array_ && array_->counter > 1) ReplaceSlots(array_->count, 0);
  }

  /// Makes the blocks that hold elements `first` to `last` private to this list, and the array too.
  void IsolateRange(int first, int last)
  {
    CopyArray();
    for (int slot = (head_ + first) >> shift_; slot <= (head_ + last) >> shift_; ++slot) IsolateBlock(slot);
  }

  /// Shortens the list to `length` elements, or lengthens it by elements as `T()` makes them.
  void Resize(int length)
    requires std::is_default_constructible_v<T>
  {
    if (length < 0) RaiseOutOfRange(length);
    int const before = length_;
    try {
      while (length_ < length) Emplace();
    } catch (...) {
      Truncate(before);
      throw;
    }
    Truncate(length);
  }

  /// Adds `x` at the end; it may be an element of this list.
  void Append(T const& x) { Emplace(x); }
  void Append(T&& x) { Emplace(std::move(x)); }

  /// Adds `x` before the first element; it may be an element of this list.
  void Prepend(T const& x) { EmplaceFront(x); }
  void Prepend(T&& x) { EmplaceFront(std::move(x)); }

  /// Inserts `x` before element `i`, or at the end if `i` is the length; the elements on the nearer side move.
  ///
  /// If moving an element throws, the list stays valid, but elements may be in the state that the move left.
  void InsertIndex(int i, T const& x) { InsertIndex(i, T(x)); }

  void InsertIndex(int i, T&& x)
  {
    if (i == length_) return Append(std::move(x));
    if (i == 0) return Prepend(std::move(x));
    CheckIndex(i);
    T inserted(std::move(x));
    if (i >= length_ / 2) {
      IsolateRange(i, length_ - 1);
      Emplace(std::move(*Place(head_ + length_ - 1)));
      MoveUp(head_ + i, head_ + length_ - 2);
    } else {
      IsolateRange(0, i - 1);
      EmplaceFront(std::move(*Place(head_)));
      MoveDown(head_ + 2, head_ + i + 1);
    }
    *Place(head_ + i) = std::move(inserted);
  }

  /// Removes element `i`; the elements on the nearer side move, and errors are those of InsertIndex.
  void RemoveIndex(int i)
  {
    CheckIndex(i);
    if (i >= length_ / 2) {
      if (i < length_ - 1) IsolateRange(i, length_ - 1);
      MoveDown(head_ + i + 1, head_ + length_);
      Truncate(length_ - 1);
    } else {
      if (i > 0) IsolateRange(0, i);
      MoveUp(head_, head_ + i);
      TruncateFront(1);
    }
  }

  void RemoveFirst()
  {
    CheckIndex(0);
    TruncateFront(1);
  }

  void RemoveLast()
  {
    CheckIndex(length_ - 1);
    Truncate(length_ - 1);
  }

  /// Removes the last element and gives it to the caller.
  T Pop()
  {
    CheckIndex(length_ - 1);
    T last(Last());
    Truncate(length_ - 1);
    return last;
  }

  /// Empties the list and gives up its storage.
  void Clear() noexcept { cow_List().Swap(*this); }

  /// The elements from `first` up to but not including `end`; whole blocks stay shared with this list.
  cow_List Slice(int first, int end) const
  {
    if (first < 0 || first > end) RaiseOutOfRange(first);
    if (end > length_) RaiseOutOfRange(end);
    cow_List slice(*this);
    slice.Truncate(end);
    slice.TruncateFront(first);
    return slice;
  }

  /// Adds the elements of `other`, which may be this list, at the end.
  void Concatenate(cow_List const& other)
  {
    if (IsEmpty()) {
      *this = other;
      return;
    }
    cow_List const source(other);
    int const before = length_;
    try {
      for (T const& element : source) Append(element);
    } catch (...) {
      Truncate(before);
      throw;
    }
  }

  /// Sets every element to `x`; the length stays.
  void Fill(T const& x)
  {
    cow_List filled(length_);
    for (int i = 0; i < length_; ++i) filled.Append(x);
    Swap(filled);
  }

  /// Replaces the content by the `length` elements at `elements`.
  void SetFromArray(T const* elements, int length)
  {
    cow_List list(length);
    for (int i = 0; i < length; ++i) list.Append(elements[i]);
    Swap(list);
  }

  /// Copies the elements to `elements`, which has room for Length() of them. What it copied before an error stays.
  void GetCArray(T* elements) const
  {
    for (T const& element : *this) *elements++ = element;
  }

  /// The index of the first element equal to `x`, or -1.
  int FindMember(T const& x) const
    requires cow_Comparable<T>
  {
    int i = 0;
    for (T const& element : *this) {
      if (element == x) return i;
      ++i;
    }
    return -1;
  }

  bool IsMember(T const& x) const
    requires cow_Comparable<T>
  {
    return FindMember(x) >= 0;
  }

  /// Removes the first element equal to `x`; false if there is none.
  bool RemoveMember(T const& x)
    requires cow_Comparable<T>
  {
    int const i = FindMember(x);
    if (i >= 0) RemoveIndex(i);
    return i >= 0;
  }

  /// Adds `x` at the end unless it is an element already; true if it was added.
  bool AppendUnlessMember(T const& x)
    requires cow_Comparable<T>
  {
    if (IsMember(x)) return false;
    Append(x);
    return true;
  }

  /// The elements that are not members of `other`, in their order. Costs the product of the lengths.
  cow_List Difference(cow_List const& other) const
    requires cow_Comparable<T>
  {
    cow_List difference;
    for (T const& element : *this) {
      if (!other.IsMember(element)) difference.Append(element);
    }
    return difference;
  }

  /// True if both have equal elements in the same order.
  bool IsEqual(cow_List const& other) const
    requires cow_Comparable<T>
  {
    if (length_ != other.length_) return false;
    if (Identical(other)) return true;
    auto theirs = other.begin();
    for (T const& mine : *this) {
      if (!(mine == *theirs)) return false;
      ++theirs;
    }
    return true;
  }

  friend bool operator==(cow_List const& a, cow_List const& b)
    requires cow_Comparable<T>
  {
    return a.IsEqual(b);
  }

  /// Sorts by `operator<`; equal elements keep their order. A list in order already is left as it is, and shared.
  void Sort()
    requires requires(T const& a, T const& b) { a < b; }
  {
    Sort([](T const& a, T const& b) { return a < b; });
  }

  /// The same by `before(a, b)`, a strict weak order.
  template <class Order>
  void Sort(Order before)
  {
    std::vector<T const*> order;
    order.reserve(static_cast<std::size_t>(length_));
    for (T const& element : *this) order.push_back(&element);
    if (std::is_sorted(order.begin(), order.end(), [&](T const* a, T const* b) { return before(*a, *b); })) return;
    std::stable_sort(order.begin(), order.end(), [&](T const* a, T const* b) { return before(*a, *b); });
    cow_List sorted(length_);
    for (T const* element : order) sorted.Append(*element);
    Swap(sorted);
  }

  void CheckIndex(int i) const
  {
    if (i < 0 || i >= length_) [[unlikely]] RaiseOutOfRange(i);
  }

  /// Aborts: an index out of range is a fault of the program, not a condition to recover from.
  [[noreturn]] void RaiseOutOfRange(int) const { std::abort(); }

 private:
  static constexpr int initialShift = 4;

  // Positions are absolute: element i is at head_ + i. A slot is null exactly if its block has no live element, and an
  // empty list has the head at 0.

  int Capacity() const noexcept { return 1 << shift_; }
  int Mask() const noexcept { return Capacity() - 1; }
  // Behind every access by index.
  [[gnu::always_inline]] Block*& Slot(int slot) const noexcept { return array_->Slots()[slot]; }
  [[gnu::always_inline]] T* Place(int position) const noexcept
  {
    return Slot(position >> shift_)->Elements() + (position & Mask());
  }

  // The common case needs no more than a look at the room; MakeRoom gives the place back so that in a loop the
  // compiler keeps it in a register.
  template <class... Arguments>
  void Emplace(Arguments&&... arguments)
  {
    T* place = next_;
    if (place == limit_) [[unlikely]] place = MakeRoom();
    if constexpr (std::is_nothrow_constructible_v<T, Arguments...>) {
      ::new (static_cast<void*>(place)) T(std::forward<Arguments>(arguments)...);
    } else {
      try {
        ::new (static_cast<void*>(place)) T(std::forward<Arguments>(arguments)...);
      } catch (...) {
        GiveUpRoom();
        throw;
      }
    }
    next_ = place + 1;
    ++length_;
  }

  /// Makes the place behind the last element private, and returns it. Out of line, or every call of Append would grow.
  [[gnu::noinline]] T* MakeRoom()
  {
    CopyArray();
    int const end = head_ + length_;
    if (!array_ || end >> shift_ >= array_->count) {
      Suffix();
      return MakeRoom();
    }
    int const slot = end >> shift_;
    if (Slot(slot)) IsolateBlock(slot);
    else Slot(slot) = Block::New(Capacity());
    T* const elements = Slot(slot)->Elements();
    next_ = elements + (end & Mask());
    limit_ = elements + Capacity();
    return next_;
  }

  /// Frees the block behind the last element if it has been made for an element that could not be constructed.
  void GiveUpRoom() noexcept
  {
    int const end = head_ + length_;
    if ((end & Mask()) != 0) return;
    CloseRoom();
    Block::Free(std::exchange(Slot(end >> shift_), nullptr), Capacity());
  }

  /// The next Append has to look whether the storage is private.
  void CloseRoom() const noexcept { next_ = limit_ = nullptr; }

  template <class... Arguments>
  void EmplaceFront(Arguments&&... arguments)
  {
    CopyArray();
    if (head_ == 0) Prefix();
    // Prefix has moved the head of an empty list away from 0, where an error must leave it.
    int const position = std::exchange(head_, length_ == 0 ? 0 : head_) - 1;
    int const slot = position >> shift_;
    if (Slot(slot)) {
      IsolateBlock(slot);
      ::new (static_cast<void*>(Place(position))) T(std::forward<Arguments>(arguments)...);
    } else {
      NewBlock block(Capacity());
      T* const place = block.Get()->Elements() + (position & Mask());
      ::new (static_cast<void*>(place)) T(std::forward<Arguments>(arguments)...);
      Slot(slot) = block.Release();
    }
    head_ = position;
    ++length_;
  }

  /// A block without elements, freed unless released.
  class NewBlock
  {
   public:
    explicit NewBlock(int capacity) : capacity_(capacity), block_(Block::New(capacity)) {}
    NewBlock(NewBlock const&) = delete;
    NewBlock& operator=(NewBlock const&) = delete;
    ~NewBlock()
    {
      if (block_) Block::Free(block_, capacity_);
    }
    Block* Get() const noexcept { return block_; }
    Block* Release() noexcept { return std::exchange(block_, nullptr); }

   private:
    int capacity_;
    Block* block_;
  };

  void IsolateBlock(int slot)
  {
    if (Slot(slot)->counter > 1) IsolateBlock(slot, head_, head_ + length_);
  }

  /// Replaces a shared block by a private copy of its elements at positions from `first` up to `end`.
  void IsolateBlock(int slot, int first, int end)
  {
    int const start = slot << shift_;
    int const from = std::max(first - start, 0);
    int const to = std::min(end - start, Capacity());
    NewBlock copy(Capacity());
    std::uninitialized_copy(Slot(slot)->Elements() + from, Slot(slot)->Elements() + to,
                            copy.Get()->Elements() + from);
    --Slot(slot)->counter;
    Slot(slot) = copy.Release();
  }

  /// Gives up a block; the last sharer destroys its elements, which are those at positions from `first` up to `end`.
  void DropBlock(int slot, int first, int end) noexcept
  {
    Block* const block = std::exchange(Slot(slot), nullptr);
    if (--block->counter > 0) return;
    int const start = slot << shift_;
    DestroyReversed(block->Elements() + std::max(first - start, 0),
                    block->Elements() + std::min(end - start, Capacity()));
    Block::Free(block, Capacity());
  }

  static void DestroyReversed(T* first, T* end) noexcept
  {
    if constexpr (!std::is_trivially_destructible_v<T>) {
      while (end != first) std::destroy_at(--end);
    }
  }

  void DropShare() noexcept
  {
    if (!array_ || --array_->counter > 0) return;
    if (length_ > 0) {
      for (int slot = (head_ + length_ - 1) >> shift_; slot >= head_ >> shift_; --slot) {
        DropBlock(slot, head_, head_ + length_);
      }
    }
    Array::Free(array_);
  }

  /// Drops elements from the end until `length` are left.
  void Truncate(int length)
  {
    if (length >= length_) return;
    if (length == 0) return DropAll();
    CloseRoom();
    CopyArray();
    int const oldEnd = head_ + length_;
    int const end = head_ + length;
    int const boundary = (end - 1) >> shift_;
    bool const shared = Slot(boundary)->counter > 1;
    if (shared && end < std::min(oldEnd, (boundary + 1) << shift_)) IsolateBlock(boundary, head_, end);
    length_ = length;
    for (int slot = (oldEnd - 1) >> shift_; slot > boundary; --slot) DropBlock(slot, head_, oldEnd);
    if (!shared) {
      int const start = boundary << shift_;
      DestroyReversed(Place(end - 1) + 1, Slot(boundary)->Elements() + std::min(oldEnd - start, Capacity()));
    }
  }

  /// Drops the first `count` elements.
  void TruncateFront(int count)
  {
    if (count == 0) return;
    if (count == length_) return DropAll();
    CopyArray();
    int const oldHead = head_;
    int const head = head_ + count;
    int const end = head_ + length_;
    int const boundary = head >> shift_;
    bool const shared = Slot(boundary)->counter > 1;
    if (shared && head > std::max(oldHead, boundary << shift_)) IsolateBlock(boundary, head, end);
    head_ = head;
    length_ -= count;
    if (!shared) {
      int const start = boundary << shift_;
      DestroyReversed(Slot(boundary)->Elements() + std::max(oldHead - start, 0), Place(head));
    }
    for (int slot = boundary - 1; slot >= oldHead >> shift_; --slot) DropBlock(slot, oldHead, end);
  }

  /// Empties the list; its layout stays if the array is its own.
  void DropAll() noexcept
  {
    if (array_ && array_->counter == 1) {
      CloseRoom();
      int const end = head_ + std::exchange(length_, 0);
      int const head = std::exchange(head_, 0);
      for (int slot = (end - 1) >> shift_; slot >= head >> shift_; --slot) DropBlock(slot, head, end);
    } else {
      Clear();
    }
  }

  /// Moves the elements at positions from `first` up to `end` one position up; all places are live and private.
  void MoveUp(int first, int end)
  {
    while (end > first) {
      int const place = end & Mask();
      if (place == 0) {
        *Place(end) = std::move(*Place(end - 1));
        --end;
      } else {
        int const count = std::min(place, end - first);
        T* const start = Place(end - count);
        std::move_backward(start, start + count, start + count + 1);
        end -= count;
      }
    }
  }

  /// The same one position down.
  void MoveDown(int first, int end)
  {
    while (first < end) {
      int const place = first & Mask();
      if (place == 0) {
        *Place(first - 1) = std::move(*Place(first));
        ++first;
      } else {
        int const count = std::min(Capacity() - place, end - first);
        T* const start = Place(first);
        std::move(start, start + count, start - 1);
        first += count;
      }
    }
  }

  int SlotCount() const noexcept { return array_ ? array_->count : 0; }

  /// The slots in use, first and number.
  int FirstSlot() const noexcept { return head_ >> shift_; }
  int UsedSlots() const noexcept
  {
    return length_ == 0 ? 0 : ((head_ + length_ - 1) >> shift_) - FirstSlot() + 1;
  }

  /// Takes a private array of `count` slots whose first `front` are free, with the used slots of the present one after
  /// them; without free slots in front the used ones keep their places.
  void ReplaceSlots(int count, int front)
  {
    if (count > (INT_MAX >> shift_) + 1) throw std::length_error("cow_List");
    Array* const array = Array::New(count);
    int const used = UsedSlots();
    int const first = front > 0 ? front : FirstSlot();
    if (used > 0) std::copy_n(array_->Slots() + FirstSlot(), used, array->Slots() + first);
    if (array_ && array_->counter > 1) {
      for (int slot = first; slot < first + used; ++slot) ++array->Slots()[slot]->counter;
      --array_->counter;
    } else {
      Array::Free(array_);
    }
    head_ += (first - FirstSlot()) << shift_;
    array_ = array;
  }

  /// Moves the used slots of the private array so that `front` free ones stand before them.
  void ShiftSlots(int front) noexcept
  {
    Block** const slots = array_->Slots();
    int const first = FirstSlot();
    int const used = UsedSlots();
    if (used > 0) std::memmove(slots + front, slots + first, static_cast<std::size_t>(used) * sizeof(Block*));
    std::fill(slots, slots + front, nullptr);
    std::fill(slots + front + used, slots + array_->count, nullptr);
    head_ += (front - first) << shift_;
  }

  /// Makes a free slot behind the used ones.
  void Suffix()
  {
    // A queue, filled at the end and emptied at the front, must not grow for ever.
    if (FirstSlot() > SlotCount() / 2) ShiftSlots(0);
    else ReplaceSlots(GrownSlots(), 0);
  }

  /// Makes a free slot before the used ones, as many as there are behind them; leaves the head of an empty list there.
  void Prefix()
  {
    int const used = UsedSlots();
    if (used >= SlotCount() / 2) ReplaceSlots(GrownSlots(), (GrownSlots() - used + 1) / 2);
    else ShiftSlots((SlotCount() - used + 1) / 2);
  }

  int GrownSlots() const noexcept
  {
    int const most = (INT_MAX >> shift_) + 1;
    return SlotCount() > most / 2 ? std::max(most, SlotCount() + 1) : std::max(4, 2 * SlotCount());
  }

  int length_ = 0;
  int shift_ = initialShift;
  int head_ = 0;
  Array* array_ = nullptr;

  // Room to append into without a look at the counters: while they differ, the array and the last block are private,
  // and these are the place behind the last element and the end of that block. A copy closes the room of its source.
  mutable T* next_ = nullptr;
  mutable T* limit_ = nullptr;
};

/// Walk over a list that shares it: what is done to the list meanwhile does not show in the walk.
///
///     for (cow_ListIter<T> iter(list); !iter.IsDone(); iter.Next()) Use(iter.Current());
template <class T>
class cow_ListIter
{
 public:
  /// Stands on the first element.
  explicit cow_ListIter(cow_List<T> const& list) noexcept : list_(list) { First(); }
  cow_ListIter(cow_ListIter const&) = default;
  cow_ListIter& operator=(cow_ListIter const&) = default;

  /// Goes to the first element; false if there is none.
  bool First() noexcept
  {
    current_ = list_.begin();
    return !IsDone();
  }

  /// Goes to the next element; false if there is none. @pre !IsDone()
  bool Next() noexcept
  {
    ++current_;
    return !IsDone();
  }

  bool IsDone() const noexcept { return current_ == std::default_sentinel; }

  /// @pre !IsDone()
  T const& Current() const noexcept { return *current_; }
  T const& operator*() const noexcept { return *current_; }
  T const* operator->() const noexcept { return &*current_; }

 private:
  cow_List<T> list_;
  cow_ListConstIterator<T> current_;
};
