#include "mem_Array.h"

#include <sys/mman.h>

#include <algorithm>
#include <new>

namespace {

constexpr std::size_t largePage = std::size_t{2} * 1024 * 1024;
constexpr std::align_val_t onLargePage{largePage};

/// What of an array is to stand in large pages: a last one that would be empty by half or more is not worth it.
constexpr std::size_t InLargePages(std::size_t size) noexcept
{
  return size / largePage * largePage + (size % largePage > largePage / 2 ? largePage : 0);
}

}  // namespace

void* mem_NewArray(std::size_t size)
{
  std::size_t const large = InLargePages(size);
  if (large == 0) return ::operator new(size);
  void* const array = ::operator new(std::max(size, large), onLargePage);
#ifdef MADV_HUGEPAGE
  // The system may refuse, and nothing is lost then.
  ::madvise(array, large, MADV_HUGEPAGE);
#endif
  return array;
}

void mem_DeleteArray(void* array, std::size_t size) noexcept
{
  if (InLargePages(size) == 0) {
    ::operator delete(array);
  } else {
    ::operator delete(array, onLargePage);
  }
}
