#pragma once

#include "TVOExport.h"

#include <cstddef>
#include <new>

/// Blocks up to this size, in bytes, come from the small-block pool; larger ones from the system.
inline constexpr std::size_t mem_largestSmallBlock = 1024;

/// The free blocks that one thread keeps, one list for each multiple of 8 bytes.
///
/// Only the inlined functions below and the pool itself use it. A thread that has not yet used the pool, or no longer
/// may, sees a pool whose lists are empty and have no room, and so always takes the way through the library.
struct mem_Pool
{
  struct Block
  {
    Block* next;
  };

  struct List
  {
    Block* first;
    int room;  ///< How many more blocks the list may keep before some are handed on to other threads.
  };

  List lists[mem_largestSmallBlock / 8];
};

// One pointer only, so that a host may load the library at run time: room for thread-local data is scarce then.
extern TVO_API constinit thread_local mem_Pool* mem_threadPool __attribute__((tls_model("initial-exec")));

/// The general ways of allocation; callers use the functions below.
TVO_API void* mem_OperatorNewSlow(std::size_t size);
TVO_API void mem_OperatorDeleteSlow(void* block, std::size_t size) noexcept;

/// Gives `size` bytes, aligned as any type of that size needs, up to 16.
///
/// The block goes back by mem_OperatorDelete with the same size, on any thread.
/// @throws std::bad_alloc when memory is exhausted.
inline void* mem_OperatorNewThrow(std::size_t size)
{
  if (size - 1 < mem_largestSmallBlock) {
    mem_Pool::List& list = mem_threadPool->lists[(size - 1) / 8];
    if (mem_Pool::Block* const block = list.first) {
      list.first = block->next;
      ++list.room;
      return block;
    }
  }
  return mem_OperatorNewSlow(size);
}

/// mem_OperatorNewThrow for the counters and holders of a few bytes; goes back by mem_OperatorDelete too.
inline void* mem_OperatorNewTinyThrow(std::size_t size) { return mem_OperatorNewThrow(size); }

/// Takes back a block of `size` bytes from mem_OperatorNewThrow or mem_OperatorNewTinyThrow; null is ignored.
inline void mem_OperatorDelete(void* block, std::size_t size) noexcept
{
  if (block && size - 1 < mem_largestSmallBlock) {
    mem_Pool::List& list = mem_threadPool->lists[(size - 1) / 8];
    if (list.room > 0) {
      --list.room;
      list.first = ::new (block) mem_Pool::Block{list.first};
      return;
    }
  }
  mem_OperatorDeleteSlow(block, size);
}

/// Gives `size` bytes from the system, or null when memory is exhausted; goes back by mem_Free.
TVO_API void* mem_Malloc(std::size_t size) noexcept;

/// Takes back what mem_Malloc gave; null is ignored.
TVO_API void mem_Free(void* block) noexcept;

/// Makes the `count`-th next allocation of this thread fail, counted from 1, and those after it succeed again.
///
/// Zero or less takes the limit away. For tests of what happens when memory runs out; costs nothing while not in use.
TVO_API void mem_SetAllocationLimit(int count) noexcept;

/// Base of the model classes: their `new` and `delete` go through the foundation.
///
/// A class that is deleted through a base needs a virtual destructor, as always: the size given back is that of the
/// class whose destructor ran.
struct mem_AllocationOperators
{
  static void* operator new(std::size_t size) { return mem_OperatorNewThrow(size); }
  static void operator delete(void* block, std::size_t size) noexcept { mem_OperatorDelete(block, size); }

  static void* operator new(std::size_t size, std::align_val_t alignment) { return ::operator new(size, alignment); }
  static void operator delete(void* block, std::align_val_t alignment) noexcept { ::operator delete(block, alignment); }

  static void* operator new(std::size_t, void* place) noexcept { return place; }
  static void operator delete(void*, void*) noexcept {}
};
