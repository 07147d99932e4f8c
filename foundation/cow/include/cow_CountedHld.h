#pragma once

#include "mem_Allocation.h"

#include <memory>
#include <new>
#include <utility>

/// Counted reference to an object of type T: copies of a holder share the object, the last one deletes it.
///
/// The counter is a plain integer: one thread. T may be incomplete where a holder is only declared. A holder of nothing
/// makes its counter when it first needs one, so null holders and moves cost no allocation.
template <class T>
class cow_CountedHld
{
 public:
  using element_type = T;

  cow_CountedHld() noexcept = default;

  /// Takes ownership of `object`, which may be null; deletes it if no counter can be had.
  cow_CountedHld(T* object) { Store(object); }

  cow_CountedHld(cow_CountedHld const& other) noexcept : counter_(other.counter_), object_(other.object_)
  {
    if (counter_) ++*counter_;
  }

  cow_CountedHld(cow_CountedHld&& other) noexcept
      : counter_(std::exchange(other.counter_, nullptr)), object_(std::exchange(other.object_, nullptr))
  {
  }

  ~cow_CountedHld() { DropReference(); }

  cow_CountedHld& operator=(cow_CountedHld const& other) noexcept
  {
    cow_CountedHld(other).Swap(*this);
    return *this;
  }

  cow_CountedHld& operator=(cow_CountedHld&& other) noexcept
  {
    cow_CountedHld(std::move(other)).Swap(*this);
    return *this;
  }

  /// Takes ownership of `object` in place of what was held; the other sharers keep the old object.
  cow_CountedHld& operator=(T* object)
  {
    if (object == object_) return *this;
    if (Exclusive()) Store(object);
    else cow_CountedHld(object).Swap(*this);
    return *this;
  }

  /// The object or null. The holder keeps it.
  T* GetPtr() const noexcept { return object_; }

  /// The object, shared with every other sharer. @pre HasValue()
  T& GetRef() const noexcept { return *object_; }

  /// The object for reading. @pre HasValue()
  T const& ConstGet() const noexcept { return *object_; }

  /// True if no other holder shares the object.
  bool Exclusive() const noexcept { return !counter_ || *counter_ == 1; }

  /// How many holders share the object.
  int Count() const noexcept { return counter_ ? *counter_ : 1; }

  bool IsNull() const noexcept { return !object_; }
  bool HasValue() const noexcept { return object_ != nullptr; }

  /// True if both hold the same object, or both none.
  bool Identical(cow_CountedHld const& other) const noexcept { return object_ == other.object_; }

  /// Makes the holder null; deletes the object if no other holder shares it.
  void Delete() noexcept
  {
    if (Exclusive()) DeleteReferent();
    else DropReference();
  }

  /// Deletes the object and keeps the counter. @pre Exclusive()
  void DeleteReferent() noexcept { Destroy(std::exchange(object_, nullptr)); }

  /// Gives up the share, and the counter with it; the last sharer deletes the object. The holder is null afterwards.
  void DropReference() noexcept
  {
    T* const object = std::exchange(object_, nullptr);
    int* const counter = std::exchange(counter_, nullptr);
    if (counter && --*counter == 0) {
      mem_OperatorDelete(counter, sizeof(int));
      Destroy(object);
    }
  }

  void Swap(cow_CountedHld& other) noexcept
  {
    std::swap(counter_, other.counter_);
    std::swap(object_, other.object_);
  }

 private:
  // The guard deletes an object that could not be given a counter. @pre Exclusive()
  void Store(T* object)
  {
    if (object && !counter_) {
      std::unique_ptr<T> guard(object);
      counter_ = ::new (mem_OperatorNewTinyThrow(sizeof(int))) int(1);
      static_cast<void>(guard.release());
    }
    Destroy(std::exchange(object_, object));
  }

  static void Destroy(T* object) noexcept
  {
    static_assert(sizeof(T) > 0, "the object's class must be complete where a holder ends");
    delete object;
  }

  int* counter_ = nullptr;
  T* object_ = nullptr;
};
