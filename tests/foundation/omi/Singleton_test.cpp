#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>
#include <utility>

#include "omi_Singleton.h"

namespace {

int built = 0;

struct Catalogue : omi_Singleton<Catalogue> {
  Catalogue() : number(++built) {}
  int number;
};

struct Doubled : omi_Singleton<Doubled> {
  Doubled() {
    static bool first = true;
    if (std::exchange(first, false)) second.reset(new Doubled);
  }
  std::unique_ptr<Doubled> second;
};

}  // namespace

TEST(SingletonTest, IsBuiltAnewAfterFinalizeAndKeptInTheRegistry) {
  Catalogue::Finalize();
  int const first = Catalogue::Instance().number;
  EXPECT_EQ(&Catalogue::Instance(), &Catalogue::Instance());
  Catalogue::Finalize();
  omi_SingletonRegistry registry;
  EXPECT_EQ(Catalogue::Instance().number, first + 1);
  EXPECT_EQ(registry.Find(typeid(Catalogue).name()), &Catalogue::Instance());
  omi_SingletonBase<Catalogue>::Finalize();
  EXPECT_EQ(registry.Size(), 0);
}

TEST(SingletonDeathTest, AbortsOnASecondObjectDuringConstruction) { EXPECT_DEATH(Doubled::Instance(), ""); }
