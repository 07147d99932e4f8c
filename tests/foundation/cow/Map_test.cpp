#include "Tracked.h"
#include "cow_Map.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using Map = cow_Map<Tracked, Tracked>;
using Model = std::map<int, int>;

/// The entries by a walk; look-ups are compared on the way.
template <class T>
Model Content(cow_Map<T, T> const& map)
{
  Model content;
  int previous = -1;
  for (auto const& [key, value] : map) {
    EXPECT_LT(previous, key.Value());
    previous = key.Value();
    EXPECT_EQ(map.Find(key), &value);
    content[previous] = value.Value();
  }
  EXPECT_EQ(map.Size(), static_cast<int>(content.size()));
  return content;
}

template <class T = Tracked>
cow_Map<T, T> Ascending(int size)
{
  cow_Map<T, T> map;
  for (int i = 0; i < size; ++i) map.Insert(T(i), T(-i));
  return map;
}

template <class T>
void Operate(std::mt19937& random, cow_Map<T, T>& map, Model& model, int range, bool growing)
{
  int const key = static_cast<int>(random() % static_cast<unsigned>(range));
  int const value = static_cast<int>(random() % 1000);
  bool const present = model.count(key) > 0;
  ASSERT_EQ(map.IsMember(T(key)), present);
  if (random() % 4 == 0 && present) {
    map.Get(T(key)) = T(value);
    model[key] = value;
  } else if ((random() % 4 != 0) == growing) {
    EXPECT_TRUE(map.Insert(T(key), T(value)));
    model[key] = value;
  } else {
    EXPECT_EQ(map.Remove(T(key)), present);
    model.erase(key);
  }
}

template <class T>
void CompareWithStandardMap()
{
  for (int const range : {30, 5000}) {
    std::mt19937 random(54321);
    cow_Map<T, T> map;
    Model model;
    std::vector<std::pair<cow_Map<T, T>, Model>> copies(4);
    for (int step = 0; step < 16'000; ++step) {
      Operate(random, map, model, range, step / 4000 % 2 == 0);
      if (step % 40 != 0) continue;
      auto& copy = copies[random() % copies.size()];
      if (step % 120 == 0) copy = {map, model};
      else Operate(random, copy.first, copy.second, range, false);
      if (step % 400 != 0) continue;
      ASSERT_TRUE(Content(map) == model) << step;
      for (auto const& [kept, content] : copies) ASSERT_TRUE(Content(kept) == content) << step;
      if (step % 2000 == 0) std::tie(map, model) = copy;
    }
    while (!map.IsEmpty()) {
      // A key from the map itself, which goes while it is in use.
      ASSERT_TRUE(map.Remove(map.begin()->key));
    }
    EXPECT_TRUE(map.begin() == map.end());
  }
}

TEST(MapTest, RandomEditsEqualThoseOfAStandardMapAndNoCopySeesThem)
{
  CompareWithStandardMap<Tracked>();
  CompareWithStandardMap<TrackedMovable>();
  EXPECT_EQ(Tracked::Alive() + Tracked::faults, 0);
}

TEST(MapTest, ChangeCopiesOnlyTheWayToTheEntry)
{
  Map const map = Ascending(5000);
  Map copy(map);
  EXPECT_TRUE(copy.Identical(map));
  Tracked const key(2500);
  Tracked::copies = 0;
  copy.Get(key);
  EXPECT_GT(Tracked::copies, 0);
  EXPECT_LE(Tracked::copies, 16 * 5);  // Keys of four levels, and the values of one leaf.
  EXPECT_EQ(copy, map);
  Tracked::copies = 0;
  copy.Get(key);
  EXPECT_EQ(Tracked::copies, 0);
  EXPECT_EQ(&copy.ConstGet(Tracked(10)), &map.ConstGet(Tracked(10)));

  // What cannot change anything copies nothing.
  Map other(map);
  EXPECT_FALSE(other.Remove(Tracked(-5)));
  EXPECT_THROW(other.Get(Tracked(5000)), cow_KeyError);
  EXPECT_TRUE(other.Identical(map));
  other.Insert(Tracked(1), other.ConstGet(Tracked(4999)));
  EXPECT_EQ(other.ConstGet(Tracked(1)).Value(), -4999);
  EXPECT_FALSE(other == map);
}

template <class T>
void FailEverywhere()
{
  auto const map = Ascending<T>(600);
  Model const content = Content(map);
  for (bool const shared : {true, false}) {
    auto edited = shared ? map : Ascending<T>(600);
    auto const check = [&] { ASSERT_TRUE(Content(edited) == content); };
    // Ascending keys leave half full nodes, so that removals have to join and inserts at the end to split.
    for (int const key : {600, 601, 602, 603, 604, 605, 606, 607, 608}) {
      FailAtEveryCopy([&] { edited.Insert(T(key), T(0)); }, check);
      Model longer(content);
      longer[key] = 0;
      FailAtEveryCopy([&] { edited.Remove(T(key)); }, [&] { ASSERT_TRUE(Content(edited) == longer); });
    }
    for (int const key : {0, 7, 300, 311}) {
      FailAtEveryCopy([&] { edited.Remove(T(key)); }, check);
      edited.Insert(T(key), T(-key));
      check();
    }
    ASSERT_TRUE(Content(map) == content);
  }
}

TEST(MapTest, FailedCopyLeavesTheContent)
{
  FailEverywhere<Tracked>();
  FailEverywhere<TrackedMovable>();
  EXPECT_EQ(Tracked::Alive() + Tracked::faults, 0);
}

struct CountingKey
{
  int value;
  static inline int comparisons = 0;
  bool operator<(CountingKey const& other) const { return ++comparisons, value < other.value; }
};

TEST(MapTest, LookUpComparesAboutAsOftenAsABinarySearch)
{
  cow_Map<CountingKey, int> map;
  for (int i = 0; i < 1 << 16; ++i) map.Insert({i ^ 0x5a5a}, i);
  CountingKey::comparisons = 0;
  for (int i = 0; i < 1000; ++i) map.Find({i * 65});
  EXPECT_LE(CountingKey::comparisons, 1000 * 20);
}

TEST(MapTest, AbsentKeyIsAnError)
{
  cow_Map<std::string, int> map{{"a", 1}, {"b", 2}, {"a", 3}};
  EXPECT_EQ(map.ConstGet("a"), 3);
  EXPECT_EQ(map.Size(), 2);
  try {
    map.ConstGet("c");
    FAIL();
  } catch (std::out_of_range const& error) {
    EXPECT_STREQ(error.what(), "no such key");
  }
  auto const moved = std::move(map);
  EXPECT_EQ(moved.Size(), 2);
  EXPECT_TRUE(map.IsEmpty());  // NOLINT(bugprone-use-after-move): a moved-from map is empty.
  EXPECT_THROW(map.Get("a"), cow_KeyError);
}

}  // namespace
