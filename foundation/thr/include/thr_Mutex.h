#pragma once

#include <mutex>

#include "TVOExport.h"

/// A lock that its owner may take again.
class TVO_API thr_Mutex {
 public:
  void Lock() { mutex_.lock(); }
  void Unlock() { mutex_.unlock(); }
  /// Whether the lock could be had at once.
  bool TryLock() { return mutex_.try_lock(); }

 private:
  std::recursive_mutex mutex_;
};

/// Holds the process's one lock while it lives; the thread that holds it may take it again.
class TVO_API thr_GlobalLock {
 public:
  thr_GlobalLock() { Mutex().Lock(); }
  ~thr_GlobalLock() { Mutex().Unlock(); }
  thr_GlobalLock(thr_GlobalLock const&) = delete;
  thr_GlobalLock& operator=(thr_GlobalLock const&) = delete;

 private:
  static thr_Mutex& Mutex() noexcept;
};
