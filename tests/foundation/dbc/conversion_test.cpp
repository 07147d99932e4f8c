#include <gtest/gtest.h>

#include "../../OldModel.h"
#include "../cls/SampleClasses.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_Utils.h"

namespace {

std::string journal;

/// The present class's declaration under an old number, without those attributes and with others.
void Declare(cls_ClassRegistrar& registrar, cls_AttributeTable const& now, int version,
             std::set<std::string> const& later, std::initializer_list<cls_DeclaredAttribute> others = {}) {
  auto& old = registrar.CreateClassMD(now.Name(), now.TypeId(), version, nullptr,
                                      now.Base() == nullptr ? 1 : now.Base()->TypeId());
  for (auto const& attribute : now.Own()) {
    cls_DeclaredAttribute const& each = attribute->declared;
    if (!later.contains(each.field.name.CStr())) old.AddAttribute(each.field, each.type, each.typeId, each.collection);
  }
  for (auto const& each : others) old.AddAttribute(each.field, each.type, each.typeId, each.collection);
}

/// Boxes had an integral width, no lists of sizes and names, and no maps.
class smp_Box_100 final : public dbc_OldClassVersion {
 public:
  void InitializeMetadata(cls_ClassRegistrar& registrar) override {
    Declare(registrar, smp_Box::Attributes(), 100, {"width", "sizes", "names", "marks", "map", "nameToID", "IDToObj"},
            {{{3, "width"}, cls_AttributeType::Int}, {{30, "gone"}, cls_AttributeType::String}});
  }
  void SchemaChanges(dbc_DatabaseConverter& converter) override {
    converter.GetConverter(150).Upgrade("smp_Box", smp_Box::TypeId(), 100).BindConversionFunction(&Upgrade_100_150);
  }
  static void* Upgrade_100_150(dbc_Row const& oldRow, dbc_Row& newRow, int row) {
    journal += "row " + std::to_string(row) + ", ";
    rfm_FieldHandle const width("width");
    newRow.SetDouble(width, 0.5 * oldRow.GetInt(width));
    dbc_Utils const& utils = dbc_Utils::Instance();
    std::vector<double> sizes;
    for (float const value : utils.GetAttributeArrayFloatFromInputDatabase(oldRow, "axis")) {
      sizes.push_back(2.0 * value);
    }
    utils.UpdateAttributeArrayDoubleInOutputDatabase(newRow, "sizes", sizes);
    utils.SetNewAttributeArrayStringInOutputDatabase(newRow, "names");
    utils.SetNewAttributeListInOutputDatabase(newRow, "marks");
    utils.SetNewAttributeMapInOutputDatabase(newRow, "map");
    utils.SetNewAttributeMapListInOutputDatabase(newRow, "nameToID");
    utils.SetNewAttributeMapInt2ObjInOutputDatabase(newRow, "IDToObj");
    utils.SetObj(newRow, "none", utils.GetObj(oldRow, "inner"));
    EXPECT_FALSE(newRow.HasField(rfm_FieldHandle("gone")));
    EXPECT_EQ(smp_Refusal([&] { newRow.SetInt(rfm_FieldHandle("gone"), 1); }), "smp_Box: has no field gone");
    EXPECT_EQ(smp_Refusal([&] { newRow.GetInt(width); }),
              "smp_Box, row " + std::to_string(row) + ": has no such field width");
    return nullptr;
  }
};

class smp_Box_150 final : public dbc_OldClassVersion {
 public:
  void InitializeMetadata(cls_ClassRegistrar& registrar) override {
    Declare(registrar, smp_Box::Attributes(), 150, {});
  }
  void SchemaChanges(dbc_DatabaseConverter& converter) override {
    converter.GetConverter(203).Upgrade("smp_Box", smp_Box::TypeId(), 150).BindFinalizeFunction(&Finish);
  }
  static void* Finish(dbc_Table const& oldTable, dbc_Table& newTable) {
    journal += "table of " + std::to_string(oldTable.Rows());
    auto const& holder = dbc_DatabaseConverterHolder::Instance();
    if (!holder.HasDatabaseConverter()) {
      ADD_FAILURE() << "no conversion runs";
      return nullptr;
    }
    dbc_DatabaseConverter& converter = holder.GetDatabaseConverter();
    dbc_Table const stored = converter.Input().GetInputTable(smp_Box::TypeId());
    EXPECT_TRUE(stored.IsNull() || stored.Version() == 100 || stored.Version() == 150);
    EXPECT_TRUE(newTable.HasField(rfm_FieldHandle("number")));
    return nullptr;
  }
};

class smp_Link_100 final : public dbc_OldClassVersion {
 public:
  void InitializeMetadata(cls_ClassRegistrar& registrar) override {
    registrar.CreateClassMD("smp_Link", smp_Link::TypeId(), 100, nullptr, 1);
  }
  void SchemaChanges(dbc_DatabaseConverter&) override {}
  void ClassesToDelete(dbc_DatabaseConverter& converter) override {
    converter.DeletedClasses().Prepend(smp_Link::TypeId());
  }
};

class ConversionTest : public testing::Test {
 protected:
  ConversionTest() {
    journal.clear();
    for (auto& version : versions_) dbc_OldClassRegistrar::Instance().Register(&version, 5);
  }
  ~ConversionTest() override {
    for (auto const& version : versions_) dbc_OldClassRegistrar::Instance().Unregister(version.GetPtr());
  }

  /// A filled box as it was stored at revision 100.
  static cls_Database OldBox() {
    cls_Database database = smp_Write(smp_FilledBox(2));
    OldTable boxes(database, *database.FindTable(smp_Box::TypeId()));
    boxes.Drop({"width", "sizes", "names", "marks", "map", "nameToID", "IDToObj"});
    boxes.Add({{3, "width"}, cls_AttributeType::Int});
    boxes.Add({{30, "gone"}, cls_AttributeType::String});
    boxes.Words("width")[0] = 7;
    boxes.SetVersion(100);
    return database;
  }

  smp_Registration const registration_;
  cow_CountedHld<dbc_OldClassVersion> versions_[3] = {cow_CountedHld<dbc_OldClassVersion>(new smp_Box_100()),
                                                      cow_CountedHld<dbc_OldClassVersion>(new smp_Box_150()),
                                                      cow_CountedHld<dbc_OldClassVersion>(new smp_Link_100())};
};

}  // namespace

TEST_F(ConversionTest, AChainRunsInAscendingOrderAndThenTheObjectIsRead) {
  static_assert(sizeof(smp_Box_100) == sizeof(void*));
  auto const opened = dbc_DecodeObject(dbc_EncodeDatabase(OldBox(), 100), "x.db");
  auto const& box = dynamic_cast<smp_Box const&>(*opened);
  smp_Box const filled = smp_FilledBox(2);
  EXPECT_EQ(journal, "row 0, row 1, row 2, table of 3");
  EXPECT_EQ(box.width, 3.5);
  ASSERT_EQ(box.sizes.Length(), filled.axis.Length());
  EXPECT_EQ(box.sizes[2], 2.0 * filled.axis[2]);
  EXPECT_TRUE(box.names.IsEmpty() && box.marks.IsEmpty() && box.byName.IsEmpty() && box.byNumber.IsEmpty());
  EXPECT_TRUE(box.none.Identical(box.inner));
  EXPECT_EQ(box.number, filled.number);
  EXPECT_EQ(box.dofs, filled.dofs);
  EXPECT_NE(box.Uid().Value(), 0u);
  EXPECT_FALSE(dbc_DatabaseConverterHolder::Instance().HasDatabaseConverter());

  // From the middle of the chain only the rest of it runs; from its end nothing.
  journal.clear();
  cls_Database middle = smp_Write(filled);
  middle.FindTable(smp_Box::TypeId())->version = 150;
  EXPECT_TRUE(cls_EqualValues(*dbc_DecodeObject(dbc_EncodeDatabase(middle, 150), "x.db"), filled));
  EXPECT_EQ(journal, "table of 3");
  journal.clear();
  dbc_DecodeObject(dbc_EncodeObject(filled), "x.db");
  EXPECT_EQ(journal, "");
}

TEST_F(ConversionTest, ReferencesToDroppedRowsGo) {
  cls_ClassRegistrar::Present().DeleteClass("smp_Link", smp_Link::TypeId());
  cls_Database database = smp_Write(smp_FilledBox(1));
  cls_Table& links = database.AddTable(smp_Link::TypeId(), "smp_Link", 100, 0);
  links.AddColumns({{0, "whatever"}, cls_AttributeType::Double});
  links.NewRow(9);
  database.Complete();
  OldTable const boxes(database, *database.FindTable(smp_Box::TypeId()));
  boxes.Words("inner#ClassID")[0] = smp_Link::TypeId();
  boxes.Words("inner#OID")[0] = 0;
  cls_Collection const& marks = database.collections[boxes.Words("marks#OID")[0]];
  database.words[marks.first] = smp_Link::TypeId();
  database.words[marks.first + 1] = 0;
  cls_Collection const& map = database.collections[boxes.Words("IDToObj#OID")[0]];
  database.words[map.first + 1] = smp_Link::TypeId();
  database.words[map.first + 2] = 0;

  auto const opened = dbc_DecodeObject(dbc_EncodeDatabase(database, 203), "x.db");
  auto const& box = dynamic_cast<smp_Box const&>(*opened);
  smp_Box const filled = smp_FilledBox(1);
  EXPECT_TRUE(box.inner.IsNull());
  EXPECT_EQ(box.marks.Length(), filled.marks.Length() - 1);
  EXPECT_EQ(box.marks[0].value, filled.marks[1].value);
  EXPECT_EQ(box.byNumber.Size(), filled.byNumber.Size() - 1);
  database.rootTypeId = smp_Link::TypeId();
  database.rootRow = 0;
  EXPECT_TRUE(smp_Refusal([&] { dbc_DecodeObject(dbc_EncodeDatabase(database, 203), "x.db"); })
                  .ends_with("is of a class that this release does not have"));
}

TEST_F(ConversionTest, RefusesOldClassesThatContradictEachOther) {
  dbc_OldClassRegistrar& registrar = dbc_OldClassRegistrar::Instance();
  cow_CountedHld<dbc_OldClassVersion> twice(new smp_Box_100());
  EXPECT_EQ(smp_Refusal([&] { registrar.Register(&twice, 2); }), "No group of old classes: 2.");
  registrar.Register(&twice, 4);
  EXPECT_EQ(smp_Refusal([&] { registrar.InOrder(); }), "Class smp_Box has its version 100 twice.");
  registrar.Unregister(twice.GetPtr());
  struct Silent final : dbc_OldClassVersion {
    void InitializeMetadata(cls_ClassRegistrar&) override {}
    void SchemaChanges(dbc_DatabaseConverter&) override {}
  };
  cow_CountedHld<dbc_OldClassVersion> silent(new Silent());
  registrar.Register(&silent, 5);
  EXPECT_EQ(smp_Refusal([&] { registrar.InOrder(); }), "An old class declares nothing.");
  registrar.Unregister(silent.GetPtr());
  EXPECT_EQ(registrar.Versions(smp_Box::TypeId()), (std::vector<int>{100, 150}));
}
