#include <gtest/gtest.h>

#include "SampleClasses.h"

namespace {

class PersistenceTest : public testing::Test {
 protected:
  /// Reads the root of the tables into an object that is there already.
  static void ReadInto(cls_Persistent& object, cls_Database const& database) {
    cls_ReadSession session(database);
    cls_ReadLevels(object, cls_ReadVisitor(session));
  }
  static std::unique_ptr<cls_Persistent> Read(cls_Database const& database) {
    cls_ReadSession session(database);
    cls_ReadVisitor reader(session);
    return std::unique_ptr<cls_Persistent>(cls_ConstructStored(reader));
  }
  static cls_Column& ColumnOf(cls_Database& database, unsigned int typeId, char const* field) {
    cls_Table& table = *database.FindTable(typeId);
    return table.columns[static_cast<std::size_t>(table.FindColumn(field))];
  }

  smp_Registration registration_;
  smp_Box const box_ = smp_FilledBox(2);
};

}  // namespace

TEST_F(PersistenceTest, ReadsWhatItWroteOverAnythingThatWasThere) {
  smp_Box target = smp_FilledBox(5);
  ReadInto(target, smp_Write(box_));
  EXPECT_TRUE(cls_EqualValues(target, box_));
  EXPECT_EQ(smp_Identities(target), smp_Identities(box_));
  EXPECT_EQ(target.Uid(), box_.Uid());

  smp_Box const empty;
  ReadInto(target, smp_Write(empty));
  EXPECT_TRUE(cls_EqualValues(target, empty));
  EXPECT_TRUE(target.inner.IsNull());

  // Each attribute takes part: a box with one other value is another box.
  smp_Box const other = smp_FilledBox(3);
  for (cls_Attribute const* attribute : smp_Box::Attributes().All()) {
    bool const alwaysNull = attribute->declared.field.name == "none";
    EXPECT_EQ(attribute->Equal(box_, other), alwaysNull) << attribute->declared.field.name;
  }
}

TEST_F(PersistenceTest, StoresAnObjectOnceHoweverManyHoldIt) {
  cls_Database const database = smp_Write(box_);
  EXPECT_EQ(database.FindTable(smp_Box::TypeId())->Rows(), 3u);
  auto const read = Read(database);
  auto const& box = static_cast<smp_Box const&>(*read);
  EXPECT_TRUE(box.inner.Identical(box.other));
  EXPECT_TRUE(box.inner.Identical(box.byName.ConstGet("same2")));
  EXPECT_TRUE(box.inner.Identical(box.byNumber.ConstGet(2)));
  EXPECT_EQ(box.inner.Count(), 4);

  // A copy that still has its origin's identity is an object of its own.
  smp_Box edited = box_;
  edited.other.Get().label = "edited";
  EXPECT_EQ(static_cast<smp_Box const&>(*Read(smp_Write(edited))).other.ConstGet().label, "edited");
}

TEST_F(PersistenceTest, DeepCopySharesNothingAndKeepsIdentitiesAndItsOwnSharing) {
  std::unique_ptr<smp_Box> const copy(static_cast<smp_Box*>(DDB_DeepCopyPtr(&box_, smp_Box::TypeId())));
  EXPECT_TRUE(cls_EqualValues(*copy, box_));
  EXPECT_EQ(smp_Identities(*copy), smp_Identities(box_));
  EXPECT_FALSE(copy->inner.Identical(box_.inner));
  EXPECT_TRUE(copy->inner.Identical(copy->other) && copy->inner.Identical(copy->byName.ConstGet("same2")));
  EXPECT_EQ(box_.inner.Count(), 4);
  EXPECT_NE(&copy->marks.ConstGet(0), &box_.marks.ConstGet(0));
}

TEST_F(PersistenceTest, NewUidLeavesNoIdentityAsItWas) {
  smp_Box box = box_;
  box.other = smp_ShapeHolder();  // The object of others keeps its identity.
  std::set<std::uint64_t> const before = smp_Identities(box_);
  box.NewUid();
  std::set<std::uint64_t> const after = smp_Identities(box);
  for (std::uint64_t const identity : after) {
    EXPECT_FALSE(before.contains(identity));
  }
  EXPECT_TRUE(cls_EqualValues(box.inner.ConstGet(), box_.inner.ConstGet()));
}

TEST_F(PersistenceTest, RefusesTablesThatMakeNoObject) {
  cls_Database enumeration = smp_Write(box_);
  *std::find(enumeration.strings.begin(), enumeration.strings.end(), "GREEN") = "BLUE";
  EXPECT_EQ(smp_Refusal([&] { Read(enumeration); }),
            "omu_PrimEnum(const cls_ReadVisitor&) - str not allowed: BLUE  Permissible: RED, GREEN");

  cls_ClassMetadata const& abstract = cls_ClassRegistrar::Present().Get(smp_Shape::TypeId());
  EXPECT_EQ(abstract.New(), nullptr);
  cls_Database ofBase = smp_Write(box_);
  ofBase.rootTypeId = smp_Shape::TypeId();
  EXPECT_EQ(smp_Refusal([&] { Read(ofBase); }), "smp_Shape, row 0: an abstract class has no objects");

  cls_Database otherKind = smp_Write(box_);
  ColumnOf(otherKind, smp_Box::TypeId(), "inner#ClassID").words[0] = smp_Mark::TypeId();
  EXPECT_EQ(smp_Refusal([&] { Read(otherKind); }), "smp_Box, row 0: refers to an object of another kind");

  cls_Database nowhere = smp_Write(box_);
  ColumnOf(nowhere, smp_Shape::TypeId(), "label").words[1] = 1000;
  EXPECT_EQ(smp_Refusal([&] { Read(nowhere); }), "smp_Shape, row 1: refers to a text that is not there");

  cls_Database cycle = smp_Write(smp_Chain(3));
  ColumnOf(cycle, smp_Link::TypeId(), "next#ClassID").words[2] = smp_Link::TypeId();
  ColumnOf(cycle, smp_Link::TypeId(), "next#OID").words[2] = 0;
  EXPECT_EQ(smp_Refusal([&] { Read(cycle); }), "smp_Link, row 0: an object holds itself");
}

TEST_F(PersistenceTest, BoundsTheDepthOfObjectsWhenWritingAndReading) {
  constexpr int most = cls_ReadSession::maxDepth;
  cls_Database deep = smp_Write(smp_Chain(most));
  EXPECT_NO_THROW(Read(deep));
  EXPECT_EQ(smp_Refusal([] { smp_Write(smp_Chain(most + 1)); }), "smp_Link, row 200: objects are nested too deeply");

  cls_Table& links = *deep.FindTable(smp_Link::TypeId());
  ColumnOf(deep, smp_Link::TypeId(), "next#ClassID").words[most - 1] = smp_Link::TypeId();
  ColumnOf(deep, smp_Link::TypeId(), "next#OID").words[most - 1] = links.NewRow(1);
  deep.Complete();
  EXPECT_EQ(smp_Refusal([&] { Read(deep); }), "smp_Link, row 200: objects are nested too deeply");
}

TEST_F(PersistenceTest, WritesAndReadsByKeyThroughVisitors) {
  cls_Database database;
  cls_WriteSession session(database);
  cls_WriteVisitor const writer(session);
  smp_Box const identity;
  ASSERT_NE(writer.StartWrite(smp_Box::TypeId(), identity.Uid()), 0u);
  cls_WriteVisitor const base(writer, smp_Shape::TypeId());
  ASSERT_NE(base.StartWrite(smp_Shape::TypeId(), identity.Uid()), 0u);
  writer.Put({6, "fixed"}, true);
  writer.Put({1, "number"}, -4);
  writer.Put({3, "width"}, 2.5);
  // Texts that live no longer than the call, one after the other at the same place.
  for (char const* text : {"first", "other"}) {
    base.Put({0, "label"}, cow_String(text));
  }
  smp_Mark const mark(3.0);
  for (char const* key : {"inner", "other"}) {
    cls_WriteVisitor const embedded(writer, cls_FieldHandle{7, key});
    EXPECT_EQ(embedded.StartWrite(smp_Mark::TypeId(), mark.Uid()) == 0, key == std::string_view("other"));
  }
  EXPECT_EQ(smp_Refusal([&] { writer.Put({0, "absent"}, 1); }), "smp_Box, row 0: no attribute of that kind: absent");
  database.Complete();

  cls_ReadSession reading(database);
  cls_ReadVisitor const reader(reading);
  bool fixed = false;
  int number = 0;
  int absent = 11;
  double width = 0.0;
  reader.Get({6, "fixed"}, fixed);
  reader.Get({1, "number"}, number);
  reader.Get({3, "width"}, width);
  reader.Get({30, "absent"}, absent);
  EXPECT_TRUE(fixed && number == -4 && width == 2.5 && absent == 11);
  EXPECT_EQ(reader.GetUid(), identity.Uid());
  EXPECT_EQ(database.String(ColumnOf(database, smp_Shape::TypeId(), "label").words[0]), "other");
  cls_ReadVisitor const inner(reader, cls_FieldHandle{7, "inner"});
  cls_ReadVisitor const other(reader, cls_FieldHandle{8, "other"});
  EXPECT_EQ(inner.Row(), other.Row());
  EXPECT_EQ(other.GetUid(), mark.Uid());
  EXPECT_FALSE(cls_ReadVisitor(reader, cls_FieldHandle{9, "none"}).HasRow());
}

// Who has lost the type of an object still writes it, gives up a share of it, and deletes it, by its metadata.
TEST_F(PersistenceTest, MetadataServeObjectsWhoseTypeIsLost) {
  cls_ClassMetadata const& shape = cls_ClassRegistrar::Present().Get(smp_Shape::TypeId());
  cls_ClassMetadata const& box = cls_ClassRegistrar::Present().Get(smp_Box::TypeId());
  smp_ShapeHolder first(box_);
  smp_ShapeHolder second = first;
  ASSERT_EQ(second.Count(), 2);
  shape.DeleteCow(reinterpret_cast<cls_UntypedHolder*>(&first));
  EXPECT_TRUE(first.IsNull());
  EXPECT_TRUE(second.Exclusive());
  EXPECT_TRUE(cls_EqualValues(second.ConstGet(), box_));

  cls_Database database;
  cls_WriteSession session(database);
  box.DBWrite(static_cast<void const*>(&box_), cls_WriteVisitor(session));
  database.Complete();
  cls_ReadSession reading(database);
  cls_ReadVisitor const reader(reading);
  EXPECT_EQ(shape.Ctor(reader), nullptr);  // an abstract class
  cls_Persistent* const read = box.Ctor(reader);
  ASSERT_NE(read, nullptr);
  EXPECT_TRUE(cls_EqualValues(*read, box_));
  box.Delete(read);
  shape.DeleteCow(reinterpret_cast<cls_UntypedHolder*>(&second));  // the last share: nothing may leak
  EXPECT_TRUE(second.IsNull());
}
