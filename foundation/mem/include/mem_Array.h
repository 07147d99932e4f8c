#pragma once

#include "TVOExport.h"

#include <cstddef>
#include <vector>

/// Gives `size` bytes for an array, aligned for any type; goes back by mem_DeleteArray.
///
/// Arrays above a megabyte ask the system for large pages: fresh memory that comes in small ones costs a visit to
/// the kernel for each of them, which is half the time that reading a large file into arrays takes.
/// @throws std::bad_alloc when memory is exhausted.
TVO_API void* mem_NewArray(std::size_t size);
/// Takes back what mem_NewArray gave for the same size.
TVO_API void mem_DeleteArray(void* array, std::size_t size) noexcept;

/// The allocator of arrays that grow with the model.
template <class T>
struct mem_ArrayAllocator
{
  using value_type = T;

  mem_ArrayAllocator() = default;
  template <class Other>
  mem_ArrayAllocator(mem_ArrayAllocator<Other> const&) noexcept
  {
  }

  // A vector asks for no more than its max_size(), so the product is in range.
  T* allocate(std::size_t count) { return static_cast<T*>(mem_NewArray(count * sizeof(T))); }
  void deallocate(T* array, std::size_t count) noexcept { mem_DeleteArray(array, count * sizeof(T)); }

  friend bool operator==(mem_ArrayAllocator, mem_ArrayAllocator) noexcept { return true; }
};

/// An array that grows with the model.
template <class T>
using mem_Array = std::vector<T, mem_ArrayAllocator<T>>;
