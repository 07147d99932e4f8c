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
Model Content(Map const& map)
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

Map Ascending(int size)
{
  Map map;
  for (int i = 0; i < size; ++i) map.Insert(Tracked(i), Tracked(-i));
  return map;
}

void Operate(std::mt19937& random, Map& map, Model& model, int range, bool growing)
{
  int const key = static_cast<int>(random()) % range & 0xffff;
  int const value = static_cast<int>(random() % 1000);
  bool const present = model.count(key) > 0;
  ASSERT_EQ(map.IsMember(Tracked(key)), present);
  if (random() % 4 == 0 && present) {
    map.Get(Tracked(key)) = Tracked(value);
    model[key] = value;
  } else if ((random() % 4 != 0) == growing) {
    EXPECT_TRUE(map.Insert(Tracked(key), Tracked(value)));
    model[key] = value;
  } else {
    EXPECT_EQ(map.Remove(Tracked(key)), present);
    model.erase(key);
  }
}

TEST(MapTest, RandomEditsEqualThoseOfAStandardMapAndNoCopySeesThem)
{
  for (int const range : {30, 5000}) {
    std::mt19937 random(54321);
    Map map;
    Model model;
    std::vector<std::pair<Map, Model>> copies(4);
    for (int step = 0; step < 16'000; ++step) {
      Operate(random, map, model, range, step / 4000 % 2 == 0);
      if (step % 40 != 0) continue;
      auto& copy = copies[random() % copies.size()];
      if (step % 120 == 0) copy = {map, model};
      else Operate(random, copy.first, copy.second, range, false);
      if (step % 400 != 0) continue;
      ASSERT_EQ(Content(map), model) << step;
      for (auto const& [kept, content] : copies) ASSERT_EQ(Content(kept), content) << step;
      if (step % 2000 == 0) std::tie(map, model) = copy;
    }
    while (!map.IsEmpty()) {
      // A key from the map itself, which goes while it is in use.
      ASSERT_TRUE(map.Remove(map.begin()->key));
    }
    EXPECT_TRUE(map.begin() == map.end());
  }
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

TEST(MapTest, FailedCopyLeavesTheContent)
{
  {
    Map const map = Ascending(600);
    Model const content = Content(map);
    for (bool const shared : {true, false}) {
      Map own = Ascending(600);
      Map edited = shared ? map : own;
      own.Clear();
      auto const check = [&] { ASSERT_EQ(Content(edited), content); };
      // Ascending keys leave half full nodes, so that removals have to join and inserts at the end to split.
      for (int const key : {600, 601, 602, 603, 604, 605, 606, 607, 608}) {
        FailAtEveryCopy([&] { edited.Insert(Tracked(key), Tracked(0)); }, check);
        FailAtEveryCopy([&] { edited.Remove(Tracked(key)); }, check);
      }
      for (int const key : {0, 7, 300, 311}) {
        FailAtEveryCopy([&] { edited.Remove(Tracked(key)); }, check);
        FailAtEveryCopy([&] { edited.Insert(Tracked(key), Tracked(-key)); }, [] {});
        check();
      }
      ASSERT_EQ(Content(map), content);
    }
  }
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
  for (int i = 0; i < 1 << 16; ++i) map.Insert({i * 40503 % 65537}, i);
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
