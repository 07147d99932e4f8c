#pragma once

#include "cow_CountedHld.h"

/// Copies an object of a concrete class by its copy constructor.
template <class T>
struct cow_Direct
{
  static T* Copy(T const& object) { return new T(object); }
};

/// Copies an object of a class tree by its virtual `Copy() const`, which gives a new object to the caller.
template <class T>
struct cow_Virtual
{
  static T* Copy(T const& object) { return static_cast<T*>(object.Copy()); }
};

/// Holder whose copies share one object until one of them asks to change it.
///
/// Copying a holder costs O(1). ConstGet() reads and never copies; Get() gives the object for writing and clones it
/// first if it is shared, so a mutable access alone counts as a write. References from Get() are good until the holder
/// is assigned or copied. The copy policy P is cow_Direct or cow_Virtual. Errors: those of copying a T.
template <class T, class P = cow_Direct<T>>
class cow_COW : public cow_CountedHld<T>
{
  using Holder = cow_CountedHld<T>;

 public:
  cow_COW() noexcept = default;

  /// Holds a clone of `object`.
  cow_COW(T const& object) : Holder(P::Copy(object)) {}

  /// Takes ownership of `object`, which may be null.
  cow_COW(T* object) : Holder(object) {}

  /// Takes ownership of `object`, or becomes null; the other sharers keep the old object.
  cow_COW& operator=(T* object)
  {
    Holder::operator=(object);
    return *this;
  }

  /// The object for reading, or null.
  T const* GetPtr() const noexcept { return Holder::GetPtr(); }

  /// The object for writing; a clone of its own if it was shared. @pre HasValue()
  T& Get()
  {
    if (!this->Exclusive()) Holder::operator=(P::Copy(this->ConstGet()));
    return Holder::GetRef();
  }

 private:
  // Would give shared objects for writing.
  using Holder::GetRef;
};

/// cow_COW as the element of a list or a map.
template <class T, class P = cow_Direct<T>>
class cow_ArrayCOW : public cow_COW<T, P>
{
 public:
  using cow_COW<T, P>::cow_COW;
  using cow_COW<T, P>::operator=;

  cow_ArrayCOW() noexcept = default;
  cow_ArrayCOW(cow_COW<T, P> const& other) noexcept : cow_COW<T, P>(other) {}
  cow_ArrayCOW(cow_COW<T, P>&& other) noexcept : cow_COW<T, P>(std::move(other)) {}
};
