#include "mem_Allocation.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <mutex>
#include <utility>

namespace {

// Read by every thread without a pool of its own and written by none: its lists never change.
constinit mem_Pool emptyPool{};

// Allocations that still succeed before one fails; below zero without a limit.
constinit thread_local int allocationsLeft = -1;

/// True if the allocation being made is the one that has to fail.
bool FailsNow() noexcept;

#ifndef MEM_NO_POOL

using Block = mem_Pool::Block;

constexpr std::size_t listCount = mem_largestSmallBlock / 8;
constexpr std::size_t chunkSize = std::size_t{64} * 1024;

/// Memory not yet divided into blocks, of ended threads; it describes itself at its start.
struct Range
{
  Range* next;
  char* end;
};

// What threads share, all under the lock. Nothing here has a destructor: blocks are freed until the process is gone.
constinit std::mutex sharedLock;
constinit Block* sharedBlocks[listCount]{};
constinit Range* sharedRanges = nullptr;

/// A thread's pool together with the memory that it still may divide.
struct ThreadPool : mem_Pool
{
  char* next = nullptr;
  char* end = nullptr;

  ThreadPool() noexcept;
  void Fill(std::size_t index);
  void HandOn(std::size_t index, int count) noexcept;
  void HandOnAll() noexcept;

 private:
  void Keep(std::size_t index, void* place) noexcept;
  bool TakeShared(std::size_t index) noexcept;
  void TakeRange();
  void UseUpRange() noexcept;
};

enum class Stage { Unused, Running, Ended };
constinit thread_local Stage stage = Stage::Unused;
constinit thread_local ThreadPool* ownPool = nullptr;

/// Ends the pool of a thread with the thread.
struct PoolOwner
{
  ~PoolOwner()
  {
    mem_threadPool = &emptyPool;
    stage = Stage::Ended;
    ownPool->HandOnAll();
    std::free(ownPool);
    ownPool = nullptr;
  }
  void Use() noexcept {}
};
thread_local PoolOwner poolOwner;

constexpr std::size_t SizeOf(std::size_t index) noexcept { return (index + 1) * 8; }

/// How many free blocks a thread keeps for itself: eight megabytes of each size. Without a bound, a thread that only
/// frees what others take would hoard all their memory; with a narrow one, a large model goes to and fro at its end.
constexpr int Room(std::size_t index) noexcept { return static_cast<int>(std::size_t{8} * 1024 * 1024 / SizeOf(index)); }

/// Blocks divided or taken over at once: enough to make the visit worth it, not so many that rare sizes hoard memory.
constexpr std::size_t Batch(std::size_t index) noexcept
{
  return std::max<std::size_t>(4, std::min<std::size_t>(64, 4096 / SizeOf(index)));
}

ThreadPool::ThreadPool() noexcept : mem_Pool{}
{
  for (std::size_t index = 0; index < listCount; ++index) lists[index].room = Room(index);
}

void ThreadPool::Keep(std::size_t index, void* place) noexcept
{
  lists[index].first = ::new (place) Block{lists[index].first};
  --lists[index].room;
}

bool ThreadPool::TakeShared(std::size_t index) noexcept
{
  std::lock_guard const guard(sharedLock);
  Block* last = lists[index].first = sharedBlocks[index];
  if (!last) return false;
  int taken = 1;
  for (; taken < static_cast<int>(Batch(index)) && last->next; ++taken) last = last->next;
  sharedBlocks[index] = std::exchange(last->next, nullptr);
  lists[index].room -= taken;
  return true;
}

/// Makes blocks of what is left of the range, which is too short for a block of the size that is asked for.
void ThreadPool::UseUpRange() noexcept
{
  while (end - next >= 8) {
    // The end is aligned to 16, so a block that reaches up to it is aligned as its size demands.
    auto const size = std::min(static_cast<std::size_t>(end - next), mem_largestSmallBlock);
    end -= size;
    Keep(size / 8 - 1, end);
  }
}

void ThreadPool::TakeRange()
{
  UseUpRange();
  {
    std::lock_guard const guard(sharedLock);
    if (Range* const range = sharedRanges) {
      sharedRanges = range->next;
      end = range->end;
      next = reinterpret_cast<char*>(range);
      return;
    }
  }
  next = static_cast<char*>(std::malloc(chunkSize));
  if (!next) {
    end = nullptr;
    throw std::bad_alloc();
  }
  end = next + chunkSize;
}

void ThreadPool::Fill(std::size_t index)
{
  if (TakeShared(index)) return;
  std::size_t const size = SizeOf(index);
  for (;;) {
    if (size % 16 == 0 && reinterpret_cast<std::uintptr_t>(next) % 16 != 0) {
      Keep(0, next);
      next += 8;
    }
    auto const fitting = static_cast<std::size_t>(end - next) / size;
    if (fitting > 0) {
      // From the last to the first, so that blocks are given out in the order of their addresses.
      auto const count = std::min(fitting, Batch(index));
      for (std::size_t i = count; i-- > 0;) Keep(index, next + i * size);
      next += count * size;
      return;
    }
    TakeRange();
  }
}

void ThreadPool::HandOn(std::size_t index, int count) noexcept
{
  Block* const first = lists[index].first;
  if (!first || count <= 0) return;
  Block* last = first;
  int handed = 1;
  for (; handed < count && last->next; ++handed) last = last->next;
  lists[index].first = last->next;
  lists[index].room += handed;
  std::lock_guard const guard(sharedLock);
  last->next = sharedBlocks[index];
  sharedBlocks[index] = first;
}

void ThreadPool::HandOnAll() noexcept
{
  if (static_cast<std::size_t>(end - next) >= 2 * mem_largestSmallBlock) {
    if (reinterpret_cast<std::uintptr_t>(next) % 16 != 0) {
      Keep(0, next);
      next += 8;
    }
    std::lock_guard const guard(sharedLock);
    sharedRanges = ::new (next) Range{sharedRanges, end};
    next = end;
  }
  UseUpRange();
  for (std::size_t index = 0; index < listCount; ++index) HandOn(index, INT_MAX);
}

/// The pool of the running thread, made at its first use; null once the thread is ending.
ThreadPool* OwnPool()
{
  if (stage == Stage::Unused) {
    void* const place = std::malloc(sizeof(ThreadPool));
    if (!place) throw std::bad_alloc();
    ownPool = ::new (place) ThreadPool;
    stage = Stage::Running;
    poolOwner.Use();
    if (allocationsLeft < 0) mem_threadPool = ownPool;
  }
  return ownPool;
}

void* Allocate(std::size_t size)
{
  if (size > mem_largestSmallBlock) return ::operator new(size);
  std::size_t const index = size ? (size - 1) / 8 : 0;
  ThreadPool* const pool = OwnPool();
  if (!pool) {
    // Destructors of an ending thread. The block joins the shared ones when it is freed, wherever it came from.
    if (void* const block = std::malloc(SizeOf(index))) return block;
    throw std::bad_alloc();
  }
  auto& list = pool->lists[index];
  if (!list.first) pool->Fill(index);
  Block* const block = list.first;
  list.first = block->next;
  ++list.room;
  return block;
}

void Deallocate(void* block, std::size_t size) noexcept
{
  if (size > mem_largestSmallBlock) return ::operator delete(block);
  std::size_t const index = size ? (size - 1) / 8 : 0;
  // A thread that only frees gets no pool: making one could fail.
  if (ThreadPool* const pool = ownPool) {
    auto& list = pool->lists[index];
    if (list.room <= 0) pool->HandOn(index, Room(index) / 2);
    list.first = ::new (block) Block{list.first};
    --list.room;
    return;
  }
  std::lock_guard const guard(sharedLock);
  sharedBlocks[index] = ::new (block) Block{sharedBlocks[index]};
}

mem_Pool* UsablePool() noexcept { return ownPool ? ownPool : &emptyPool; }

#else

// Plain allocation, so that sanitizers see each block and its size.
void* Allocate(std::size_t size) { return ::operator new(size); }
#ifdef __cpp_sized_deallocation
void Deallocate(void* block, std::size_t size) noexcept { ::operator delete(block, size); }
#else
void Deallocate(void* block, std::size_t) noexcept { ::operator delete(block); }
#endif
mem_Pool* UsablePool() noexcept { return &emptyPool; }

#endif

bool FailsNow() noexcept
{
  if (allocationsLeft < 0 || --allocationsLeft >= 0) return false;
  mem_threadPool = UsablePool();
  return true;
}

}  // namespace

constinit thread_local mem_Pool* mem_threadPool = &emptyPool;

void* mem_OperatorNewSlow(std::size_t size)
{
  if (FailsNow()) throw std::bad_alloc();
  return Allocate(size);
}

void mem_OperatorDeleteSlow(void* block, std::size_t size) noexcept
{
  if (block) Deallocate(block, size);
}

void* mem_Malloc(std::size_t size) noexcept { return FailsNow() ? nullptr : std::malloc(size ? size : 1); }

void mem_Free(void* block) noexcept { std::free(block); }

void mem_SetAllocationLimit(int count) noexcept
{
  allocationsLeft = count > 0 ? count - 1 : -1;
  // With a limit every allocation has to be counted, so none may be served by the inlined code.
  mem_threadPool = count > 0 ? &emptyPool : UsablePool();
}
