#include "mem_Allocation.h"
#include "mem_Array.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <thread>
#include <vector>

namespace {

struct Taken
{
  unsigned char* bytes;
  std::size_t size;
  unsigned char mark;
};

Taken Take(std::size_t size, unsigned char mark)
{
  auto* const bytes = static_cast<unsigned char*>(mem_OperatorNewThrow(size));
  // The alignment that a type of this size could have.
  std::size_t const alignment = size == 0 ? 1 : std::min<std::size_t>(size & (0 - size), 16);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bytes) % alignment, 0U);
  std::memset(bytes, mark, size);
  return {bytes, size, mark};
}

/// Fails if the block was given out twice or overlaps another.
void Give(Taken const& taken)
{
  for (std::size_t i = 0; i < taken.size; ++i) ASSERT_EQ(taken.bytes[i], taken.mark);
  mem_OperatorDelete(taken.bytes, taken.size);
}

std::vector<Taken> TakeMany(unsigned seed, int count)
{
  std::mt19937 random(seed);
  std::vector<Taken> taken;
  for (int i = 0; i < count; ++i) {
    taken.push_back(Take(random() % (i % 8 == 0 ? 3000 : 200), static_cast<unsigned char>(random())));
    if (i % 3 == 0) {
      auto& some = taken[random() % taken.size()];
      Give(some);
      std::swap(some, taken.back());
      taken.pop_back();
    }
  }
  return taken;
}

TEST(AllocationTest, BlocksAreAlignedAndNeverGivenTwice)
{
  for (auto const& taken : TakeMany(1, 20'000)) Give(taken);
  mem_OperatorDelete(nullptr, 16);
}

TEST(AllocationTest, BlocksMayBeFreedByOtherThreadsAndOutliveTheirs)
{
  for (unsigned round = 0; round < 4; ++round) {
    std::vector<Taken> first, second;
    std::thread a([&] { first = TakeMany(round, 5000); });
    std::thread b([&] { second = TakeMany(round + 100, 5000); });
    a.join();
    b.join();
    std::thread c([&] {
      for (auto const& taken : first) Give(taken);
    });
    for (auto const& taken : second) Give(taken);
    c.join();
  }
}

TEST(AllocationTest, ThreadThatOnlyFreesDoesNotKeepTheMemory)
{
  // More than a thread keeps of one size, so that some is handed on while it runs.
  constexpr int count = 3 * 8 * 1024;
  std::vector<void*> blocks(count);
  for (void*& block : blocks) block = mem_OperatorNewThrow(1024);
  std::thread([&] {
    mem_OperatorDelete(mem_OperatorNewThrow(8), 8);
    for (void* const block : blocks) mem_OperatorDelete(block, 1024);
  }).join();
  std::vector<Taken> again;
  again.reserve(count);
  for (int i = 0; i < count; ++i) again.push_back(Take(1024, static_cast<unsigned char>(i)));
  for (auto const& taken : again) Give(taken);
}

/// Uses the allocator when the pool of its thread has ended already.
struct LateUser
{
  Taken kept{};
  ~LateUser()
  {
    Give(kept);
    Give(Take(40, 1));
    Give(Take(4000, 2));
  }
};

TEST(AllocationTest, ServesDestructorsOfAnEndingThread)
{
  std::thread([] {
    thread_local LateUser user;  // Made before the pool, so destroyed after it.
    user.kept = Take(24, 3);
  }).join();
  for (auto const& taken : TakeMany(5, 2000)) Give(taken);
}

struct Counted : mem_AllocationOperators
{
  virtual ~Counted() = default;
  int value = 1;
};
struct Larger : Counted
{
  char more[100]{};
};
struct alignas(64) Wide : mem_AllocationOperators
{
  double value = 0;
};

TEST(AllocationTest, FailureCanBeOrdered)
{
  mem_SetAllocationLimit(3);
  void* const first = mem_OperatorNewTinyThrow(4);
  Counted* const second = new Larger;
  EXPECT_THROW(mem_OperatorNewThrow(5000), std::bad_alloc);
  void* const next = mem_OperatorNewTinyThrow(4);
  EXPECT_NE(next, first);
  mem_SetAllocationLimit(1);
  EXPECT_EQ(mem_Malloc(8), nullptr);
  mem_SetAllocationLimit(1);
  EXPECT_THROW(new Counted, std::bad_alloc);
  mem_OperatorDelete(first, 4);
  mem_OperatorDelete(next, 4);
  delete second;
  mem_Free(mem_Malloc(0));

  auto* const wide = new Wide;
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(wide) % 64, 0U);
  delete wide;
}

TEST(AllocationTest, ArraysHoldWhatTheyAreGivenWhereverTheyStand)
{
  // Around the sizes at which arrays begin to ask for one large page more.
  constexpr std::size_t megabyte = std::size_t{1} << 20;
  for (std::size_t half = 0; half <= 5; ++half) {
    for (std::size_t const size : {half * megabyte, half * megabyte + 1}) {
      auto* const bytes = static_cast<unsigned char*>(mem_NewArray(size));
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bytes) % 16, 0U);
      std::memset(bytes, 7, size);
      mem_DeleteArray(bytes, size);
    }
  }
  mem_Array<int> grown;
  for (int i = 0; i < 1'500'000; ++i) grown.push_back(i);
  mem_Array<int> const copy = grown;
  grown.assign(3, 0);
  grown.shrink_to_fit();
  for (int i = 0; i < 1'500'000; ++i) ASSERT_EQ(copy[static_cast<std::size_t>(i)], i);
}

}  // namespace
