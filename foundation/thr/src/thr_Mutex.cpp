#include "thr_Mutex.h"

#include <cstddef>
#include <new>

thr_Mutex& thr_GlobalLock::Mutex() noexcept {
  // Never ended: singletons may still be asked for while the process ends.
  alignas(thr_Mutex) static std::byte place[sizeof(thr_Mutex)];
  static thr_Mutex& mutex = *::new (static_cast<void*>(place)) thr_Mutex;
  return mutex;
}
