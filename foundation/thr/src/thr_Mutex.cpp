#include "thr_Mutex.h"

thr_Mutex& thr_GlobalLock::Mutex() noexcept {
  // Never ended: singletons may still be asked for while the process ends.
  static thr_Mutex& mutex = *new thr_Mutex;
  return mutex;
}
