#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include "thr_Singletons.h"

namespace {

std::atomic<int> globalsBuilt = 0;
std::atomic<int> historiesAlive = 0;

struct Global : thr_GlobalSingleton<Global> {
  Global() {
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    ++globalsBuilt;
    thr_GlobalLock const again;
  }
};

struct History {
  History() { ++historiesAlive; }
  ~History() { --historiesAlive; }
  int entries = 0;
};

}  // namespace

TEST(GlobalSingletonTest, ThreadsBuildOneInstance) {
  std::vector<std::thread> threads(4);
  for (std::thread& thread : threads) thread = std::thread([] { Global::Instance(); });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(globalsBuilt, 1);
  Global::Finalize();
  Global::Finalize();
  Global::Instance();
  EXPECT_EQ(globalsBuilt, 2);
  Global::Finalize();
}

TEST(ThreadSingletonTest, EveryThreadHasItsOwnUntilItEnds) {
  using Histories = thr_ThreadSingleton<History>;
  Histories::Instance().entries = 5;
  std::thread([] {
    EXPECT_EQ(Histories::Instance().entries, 0);
    Histories::Instance().entries = 7;
    EXPECT_EQ(historiesAlive, 2);
  }).join();
  EXPECT_EQ(historiesAlive, 1);
  EXPECT_EQ(Histories::Instance().entries, 5);
  Histories::Finalize();
  EXPECT_EQ(historiesAlive, 0);
  EXPECT_EQ(Histories::Instance().entries, 0);
  Histories::Finalize();
}
