#include "Tracked.h"
#include "cow_List.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>

namespace {

using List = cow_List<Tracked>;
using Model = std::vector<int>;

List Ascending(int length)
{
  List list;
  for (int i = 0; i < length; ++i) list.Append(Tracked(i));
  return list;
}

template <class T>
Model Content(cow_List<T> const& list)
{
  Model content;
  for (T const& element : list) {
    if constexpr (std::is_same_v<T, Tracked>) content.push_back(element.Value());
    else content.push_back(element);
  }
  EXPECT_EQ(static_cast<int>(content.size()), list.Length());
  return content;
}

int CopiesIn(std::function<void()> const& change)
{
  int const before = Tracked::copies;
  change();
  return Tracked::copies - before;
}

TEST(ListTest, WritingToACopyCopiesOneBlock)
{
  List const list = Ascending(100);
  List copy(list);
  EXPECT_EQ(CopiesIn([&] { copy = list; }), 0);
  Tracked const nine(9);
  EXPECT_EQ(CopiesIn([&] { copy.Put(40, nine); }), 16 + 1);
  EXPECT_EQ(CopiesIn([&] { copy.Put(47, nine); }), 1);
  EXPECT_EQ(list[40].Value(), 40);
  EXPECT_EQ(&list[39], &list.UncheckedConstGet(39));
  EXPECT_EQ(&copy[31], &list[31]);
  EXPECT_NE(&copy[32], &list[32]);
  EXPECT_EQ(&copy[48], &list[48]);

  // The last block holds four; the first one none before the head.
  EXPECT_EQ(CopiesIn([&] { List(list).Append(nine); }), 4 + 1);
  EXPECT_EQ(CopiesIn([&] { List(list).Prepend(nine); }), 1);
  EXPECT_EQ(CopiesIn([&] { List(list).RemoveLast(); }), 3);
  EXPECT_EQ(CopiesIn([&] { EXPECT_EQ(list.Slice(32, 64).Length(), 32); }), 0);
  List const part = list.Slice(30, 64);
  EXPECT_EQ(&part[2], &list[32]);
  EXPECT_NE(&part[0], &list[30]);
}

TEST(ListTest, InsertingAndRemovingTouchTheNearerEndOnly)
{
  List const list = Ascending(160);
  for (int const i : {3, 35, 79, 80, 120, 159}) {
    List inserted(list);
    inserted.InsertIndex(i, Tracked(-1));
    List removed(list);
    removed.RemoveIndex(i);
    auto const far = [&](List const& other, int moved) {
      // The block of the other end is still the common one.
      return i < 80 ? &other[150 + moved] == &list[150] : &other[5] == &list[5];
    };
    EXPECT_TRUE(far(inserted, 1)) << i;
    EXPECT_TRUE(far(removed, -1)) << i;
    EXPECT_EQ(inserted[i].Value(), -1);
  }
}

/// Does one random operation on both; elements of the list itself are handed in too.
template <class T>
void Operate(std::mt19937& random, cow_List<T>& list, Model& model)
{
  auto const below = [&](int end) { return std::uniform_int_distribution(0, end - 1)(random); };
  int const value = below(50);
  bool const empty = model.empty();
  int const length = static_cast<int>(model.size());
  int const i = empty ? 0 : below(length);
  switch (below(14)) {
  case 0: case 1: list.Append(T(value)); model.push_back(value); break;
  case 2: case 3: list.Prepend(T(value)); model.insert(model.begin(), value); break;
  case 4: case 5:
    if (empty) break;
    list.InsertIndex(i, list[length - 1]);
    model.insert(model.begin() + i, model[model.size() - 1]);
    break;
  case 6: if (!empty) { list.RemoveIndex(i); model.erase(model.begin() + i); } break;
  case 7: if (!empty) { list.RemoveFirst(); model.erase(model.begin()); } break;
  case 8: if (!empty) { list.RemoveLast(); model.pop_back(); } break;
  case 9: if (!empty) { list.Put(i, T(value)); model[static_cast<std::size_t>(i)] = value; } break;
  case 10:
    list.RemoveMember(T(value));
    if (auto const at = std::find(model.begin(), model.end(), value); at != model.end()) model.erase(at);
    break;
  case 11: if (!empty) { list.Append(list[i]); model.push_back(model[static_cast<std::size_t>(i)]); } break;
  case 12: {
    int const size = std::max(0, length + below(40) - 21);
    list.Resize(size);
    model.resize(static_cast<std::size_t>(size));
    break;
  }
  default:
    if (length > 120) {
      list = list.Slice(length / 4, i / 4 + length / 2);
      model = Model(model.begin() + length / 4, model.begin() + i / 4 + length / 2);
    } else {
      list.Concatenate(list);
      Model const twice(model);
      model.insert(model.end(), twice.begin(), twice.end());
    }
  }
}

template <class T>
void CompareWithVector(int expected)
{
  std::mt19937 random(12345);
  cow_List<T> list(expected);
  Model model;
  std::vector<std::pair<cow_List<T>, Model>> copies(8);
  for (int step = 0; step < 3000; ++step) {
    Operate(random, list, model);
    ASSERT_EQ(Content(list), model) << step;
    auto& copy = copies[random() % copies.size()];
    if (step % 3 == 0) copy = {list, model};
    // Copies are edited too, so that blocks are shared in all ways and separated from either side.
    if (step % 5 == 0) Operate(random, copy.first, copy.second);
    for (auto const& [kept, content] : copies) ASSERT_EQ(Content(kept), content) << step;
    if (step % 50 == 0) std::tie(list, model) = copy;
  }
}

TEST(ListTest, RandomEditsEqualThoseOfAVectorAndNoCopySeesThem)
{
  CompareWithVector<Tracked>(0);
  CompareWithVector<int>(1000);
  EXPECT_EQ(Tracked::Alive() + Tracked::faults, 0);
}

TEST(ListTest, FailedCopyLeavesTheContent)
{
  {
    List const list = Ascending(100);
    Model const content = Content(list);
    List other = Ascending(30);
    Tracked const x(7);
    std::function<void(List&)> const changes[] = {
        [&](List& l) { l.Get(20); },        [&](List& l) { l.Append(x); },
        [&](List& l) { l.Prepend(x); },     [&](List& l) { l.RemoveLast(); },
        [&](List& l) { l.RemoveFirst(); },  [&](List& l) { l.Resize(50); },
        [&](List& l) { l.Concatenate(l); }, [&](List& l) { l.Fill(x); },
        [&](List& l) { l.Pop(); },          [&](List& l) { l.Sort([](auto& a, auto& b) { return b < a; }); },
        [&](List& l) { l = l.Slice(1, 9); }};
    for (auto const& change : changes) {
      for (bool const shared : {true, false}) {
        List edited(list);
        if (!shared) edited.IsolateRange(0, 99);
        FailAtEveryCopy([&] { change(edited); }, [&] { ASSERT_EQ(Content(edited), content); });
        ASSERT_EQ(Content(list), content);
      }
    }
    // These move elements by copying: what is left is not told, but it is whole.
    for (int const i : {10, 90}) {
      for (bool const insert : {true, false}) {
        List edited(list);
        FailAtEveryCopy([&] { insert ? edited.InsertIndex(i, x) : edited.RemoveIndex(i); },
                        [&] { EXPECT_EQ(Content(edited).size(), static_cast<std::size_t>(edited.Length())); });
        ASSERT_EQ(Content(list), content);
      }
    }
    List empty;
    FailAtEveryCopy([&] { empty.Prepend(x); }, [&] { EXPECT_TRUE(empty.IsEmpty() && empty.begin() == empty.end()); });
    FailAtEveryCopy([&] { List{x, x, x}; }, [] {});
    // The element would have been the first of its block.
    for (int const length : {0, 96}) {
      List full = Ascending(length);
      FailAtEveryCopy([&] { full.Append(x); }, [&] { ASSERT_EQ(full.Length(), length); });
      EXPECT_EQ(full.Last().Value(), 7);
    }
  }
  EXPECT_EQ(Tracked::Alive() + Tracked::faults, 0);
}

TEST(ListTest, ExhaustedMemoryLeavesTheContent)
{
  for (int allowed = 1; allowed < 4; ++allowed) {
    List const list = Ascending(64);
    List edited(list);
    mem_SetAllocationLimit(allowed);
    EXPECT_THROW(edited.Append(Tracked(64)), std::bad_alloc) << allowed;
    mem_SetAllocationLimit(0);
    EXPECT_EQ(edited, list);
    edited.Append(Tracked(64));
    EXPECT_EQ(edited.Length(), 65);
  }
  EXPECT_EQ(Tracked::Alive(), 0);
}

TEST(ListTest, InitializeLaysOutLargeBlocks)
{
  cow_List<Tracked> list(300);  // floor(log2(300)) - 3 is 5: blocks of 32.
  for (int i = 0; i < 64; ++i) list.Append(Tracked(i));
  List copy(list);
  EXPECT_EQ(CopiesIn([&] { copy.Get(0); }), 32);
  mem_SetAllocationLimit(1);
  EXPECT_NO_THROW(list.Initialize(0));
  mem_SetAllocationLimit(0);
  EXPECT_TRUE(list.IsEmpty());
  list.Initialize(10);
  for (int i = 0; i < 40; ++i) list.Prepend(Tracked(i));
  EXPECT_EQ(list.First().Value(), 39);
}

TEST(ListTest, EmptiedListTakesElementsAgain)
{
  {
    List list;
    std::function<void()> const ways[] = {[&] { list.RemoveLast(); }, [&] { list.RemoveFirst(); }, [&] { list.Pop(); },
                                          [&] { list.Resize(0); }, [&] { list.RemoveMember(Tracked(3)); }};
    for (auto const& empty : ways) {
      list.Append(Tracked(3));
      empty();
      EXPECT_TRUE(list.IsEmpty());
    }
    list.Append(Tracked(4));
    EXPECT_EQ(list.First().Value(), 4);
  }
  EXPECT_EQ(Tracked::Alive() + Tracked::faults, 0);
}

TEST(ListTest, QueueDoesNotGrow)
{
  cow_List<int> queue;
  for (int i = 0; i < 40; ++i) queue.Append(i);
  // The array of blocks would have to grow now and then if places at the front were not used again.
  mem_SetAllocationLimit(20'000);
  for (int i = 40; i < 100'000; ++i) {
    queue.Append(i);
    ASSERT_EQ(queue.First(), i - 40);
    queue.RemoveFirst();
  }
  mem_SetAllocationLimit(0);
  EXPECT_EQ(queue.Length(), 40);
}

TEST(ListTest, WalkSeesTheContentItStartedWith)
{
  List list = Ascending(40);
  int expected = 0;
  for (cow_ListIter<Tracked> iter(list); !iter.IsDone(); iter.Next()) {
    EXPECT_EQ(iter->Value(), expected++);
    if (!list.IsEmpty()) list.RemoveFirst();
    list.Prepend(Tracked(-1));
    list.RemoveIndex(list.Length() / 2);
  }
  EXPECT_EQ(expected, 40);
  EXPECT_TRUE(cow_ListIter<Tracked>(List()).IsDone());
}

TEST(ListTest, SetOperationsAndOrder)
{
  cow_List<std::string> const list{"b", "a", "c", "a"};
  EXPECT_EQ(list.FindMember("a"), 1);
  EXPECT_EQ(list.FindMember("x"), -1);
  EXPECT_EQ(list.Difference({"a"}), (cow_List<std::string>{"b", "c"}));
  auto edited = list;
  EXPECT_FALSE(edited.AppendUnlessMember("c"));
  EXPECT_TRUE(edited.AppendUnlessMember("d"));
  EXPECT_EQ(edited.Pop(), "d");
  EXPECT_EQ(edited, list);
  edited.Sort();
  EXPECT_EQ(edited, (cow_List<std::string>{"a", "a", "b", "c"}));
  auto const sorted = edited;
  edited.Sort();
  EXPECT_TRUE(edited.Identical(sorted));
  std::string array[4];
  edited.GetCArray(array);
  edited.SetFromArray(array + 1, 2);
  EXPECT_EQ(edited, (cow_List<std::string>{"a", "b"}));
  edited.Fill("z");
  EXPECT_EQ(edited, (cow_List<std::string>{"z", "z"}));
}

struct alignas(64) Wide
{
  double value = 1;
};

TEST(ListTest, ElementsAreAligned)
{
  cow_List<Wide> list;
  list.Resize(20);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(&list[17]) % 64, 0U);
}

TEST(ListDeathTest, IndexOutOfRangeAborts)
{
  cow_List<int> list{1, 2};
  EXPECT_DEATH(list.ConstGet(2), "");
  EXPECT_DEATH(list.Get(-1), "");
  EXPECT_DEATH(list.InsertIndex(3, 0), "");
  EXPECT_DEATH(list.RemoveIndex(2), "");
  EXPECT_DEATH(list.Slice(1, 3), "");
  list.Clear();
  EXPECT_DEATH(list.First(), "");
  EXPECT_DEATH(list.Pop(), "");
}

}  // namespace
