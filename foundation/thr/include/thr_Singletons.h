#pragma once

#include <memory>

#include "omi_Singleton.h"
#include "thr_Mutex.h"

/// omi_Singleton for several threads: the instance is found, built and ended under thr_GlobalLock. What threads do with
/// it afterwards is not locked.
template <class T>
class TVO_API thr_GlobalSingleton : public omi_SingletonBase<T> {
 public:
  static T& Instance() {
    thr_GlobalLock const lock;
    return omi_SingletonBase<T>::Obtain();
  }
  static void Finalize() {
    thr_GlobalLock const lock;
    omi_SingletonBase<T>::Finalize();
  }
  static void Delete() { Finalize(); }

 protected:
  thr_GlobalSingleton() = default;
  ~thr_GlobalSingleton() = default;
};

/// One `T` for each thread, built on its first use there and ended with the thread. `T` need not derive from anything.
template <class T>
class TVO_API thr_ThreadSingleton {
 public:
  static T& Instance() {
    std::unique_ptr<T>& slot = Slot();
    if (slot == nullptr) slot.reset(new T);
    return *slot;
  }
  /// Ends this thread's instance; a later Instance() builds a new one.
  static void Finalize() { Slot().reset(); }

 private:
  static std::unique_ptr<T>& Slot() {
    static thread_local std::unique_ptr<T> slot;
    return slot;
  }
};
