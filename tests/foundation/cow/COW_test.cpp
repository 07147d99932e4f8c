#include "Tracked.h"
#include "cow_COW.h"
#include "cow_List.h"
#include "cow_Map.h"

#include <gtest/gtest.h>

namespace {

class Shape : public mem_AllocationOperators
{
 public:
  virtual ~Shape() = default;
  virtual Shape* Copy() const = 0;
  virtual int Corners() const = 0;
};

class Polygon : public Shape
{
 public:
  explicit Polygon(int corners) : corners_(corners) {}
  Polygon* Copy() const override { return new Polygon(*this); }
  int Corners() const override { return corners_.Value(); }

 private:
  Tracked corners_;
};

class Undefined;

/// Holders and containers are declared of classes that are defined later.
struct Later
{
  cow_COW<Undefined> holder;
  cow_List<Undefined> list;
  cow_Map<int, Undefined> map;
  Later();
  ~Later();
};

class Undefined
{
 public:
  int value = 7;
};
Later::Later() : holder(Undefined()) {}
Later::~Later() = default;

TEST(CountedHldTest, LastSharerDeletesTheObject)
{
  {
    cow_CountedHld<Tracked> a(new Tracked(1));
    cow_CountedHld<Tracked> b(a);
    cow_CountedHld<Tracked> c;
    EXPECT_TRUE(c.IsNull() && c.Exclusive());
    c = b;
    EXPECT_FALSE(a.Exclusive());
    a.Delete();
    EXPECT_TRUE(a.IsNull());
    b = new Tracked(2);
    EXPECT_EQ(c.GetRef().Value(), 1);
    EXPECT_TRUE(c.Exclusive());
    c = std::move(b);
    // A moved-from holder holds nothing.
    EXPECT_TRUE(b.IsNull());  // NOLINT(bugprone-use-after-move, clang-analyzer-cplusplus.Move)
    b = new Tracked(3);
    c = c.GetPtr();
    EXPECT_EQ(c.ConstGet().Value() + b.ConstGet().Value(), 5);
    c.DeleteReferent();
    EXPECT_EQ(Tracked::Alive(), 1);
    b.DropReference();
    EXPECT_EQ(Tracked::Alive(), 0);
    b = c;
    c = new Tracked(4);
    EXPECT_TRUE(b.IsNull());
  }
  EXPECT_EQ(Tracked::Alive(), 0);
}

TEST(COWTest, OnlyWritingToASharedObjectClonesIt)
{
  {
    cow_COW<Shape, cow_Virtual<Shape>> a(new Polygon(3));
    auto* const original = a.GetPtr();
    EXPECT_EQ(&a.Get(), original);
    auto b = a;
    EXPECT_EQ(b.ConstGet().Corners(), 3);
    EXPECT_TRUE(a.Identical(b));
    EXPECT_NE(&b.Get(), original);
    EXPECT_EQ(b.ConstGet().Corners(), 3);
    EXPECT_EQ(&a.Get(), original);

    b = a;
    b = new Polygon(5);
    EXPECT_EQ(a.ConstGet().Corners(), 3);
    cow_ArrayCOW<Shape, cow_Virtual<Shape>> c(a);
    a = nullptr;
    EXPECT_TRUE(a.IsNull() && !a.GetPtr());
    EXPECT_EQ(&c.Get(), original);
    cow_COW<Shape, cow_Virtual<Shape>> const clone(Polygon(8));
    EXPECT_EQ(clone.ConstGet().Corners(), 8);
  }
  EXPECT_EQ(Tracked::Alive(), 0);
  EXPECT_EQ(Later().holder.ConstGet().value, 7);
}

TEST(COWTest, FailureLeavesTheShareAndLosesNothing)
{
  {
    cow_COW<Tracked> a(new Tracked(1));
    auto b = a;
    FailAtEveryCopy([&] { b.Get(); }, [&] { EXPECT_TRUE(a.Identical(b)); });
    EXPECT_FALSE(a.Identical(b));

    b = a;
    mem_SetAllocationLimit(1);
    EXPECT_THROW(b.Get(), std::bad_alloc);
    EXPECT_TRUE(a.Identical(b));
    mem_SetAllocationLimit(1);
    EXPECT_THROW(b = new Tracked(2), std::bad_alloc);
    mem_SetAllocationLimit(1);
    EXPECT_THROW(cow_COW<Tracked>(new Tracked(2)), std::bad_alloc);
    EXPECT_EQ(Tracked::Alive(), 1);
  }
  EXPECT_EQ(Tracked::Alive() + Tracked::faults, 0);
}

}  // namespace
