#include <gtest/gtest.h>

#include "TVOOdbAttrEO.h"
#include "ddr_Module.h"
#include "kbcC_DisplacementBC.h"
#include "kbcC_ModelMembers.h"
#include "kprC_ModelMembers.h"

// A shelf of regions on the model: a path with a member that is no extension, and with a place in a list.

constexpr unsigned int shelf_ModuleId = 60000;
constexpr typ_Row shelf_Rows[] = {
    {1, "shelf_Shelf", "mdl_Extension"},
    {2, "ddr_Shortcut<shelf_Shelf>", ""},
    {3, "ddr_ShortcutImpl<shelf_Shelf>", ""},
    {4, "ddr_MemberShortcut<ddr_Model, shelf_Shelf, 1>", "ddr_ShortcutImpl<shelf_Shelf>"},
    {5, "ddr_Shortcut<shelf_List>", ""},
    {6, "ddr_ShortcutImpl<shelf_List>", ""},
    {7, "ddr_MemberShortcut<shelf_Shelf, shelf_List, 1>", "ddr_ShortcutImpl<shelf_List>"},
    {8, "ddr_Shortcut<rgnC_Region>", ""},
    {9, "ddr_ShortcutImpl<rgnC_Region>", ""},
    {10, "ddr_SequenceShortcut<shelf_List, rgnC_Region, 1>", "ddr_ShortcutImpl<rgnC_Region>"},
};
consteval unsigned int shelf_TypeId(std::string_view name) { return typ_Id(shelf_ModuleId, shelf_Rows, name); }

using shelf_List = cls_xoList<rgnC_Region>;
class shelf_Shelf final : public mdl_Extension {
  CLS_PERSISTENT(shelf, shelf_Shelf)

 public:
  shelf_Shelf() = default;
  shelf_List regions;
};
cls_AttributeTable const& shelf_Shelf::Attributes() {
  static auto const table =
      cls_Describe<shelf_Shelf, mdl_Extension>("shelf_Shelf", 203).Attribute("regions", &shelf_Shelf::regions);
  return table;
}

template <>
struct ddr_MemberOf<ddr_Model, shelf_Shelf> {
  static char const* Name() { return "shelf"; }
  static char const* ScriptingName() { return "shelf"; }
};
template <>
struct ddr_MemberOf<shelf_Shelf, shelf_List> {
  static char const* Name() { return "regions"; }
  static char const* ScriptingName() { return "regionArray"; }
  static shelf_List& Get(shelf_Shelf& shelf) { return shelf.regions; }
  static shelf_List const& ConstGet(shelf_Shelf const& shelf) { return shelf.regions; }
};
CLS_INSTANCE(shelf, ddr_Shortcut<shelf_Shelf>);
CLS_INSTANCE(shelf, ddr_ShortcutImpl<shelf_Shelf>);
CLS_INSTANCE(shelf, ddr_MemberShortcut<ddr_Model, shelf_Shelf, 1>);
CLS_INSTANCE(shelf, ddr_Shortcut<shelf_List>);
CLS_INSTANCE(shelf, ddr_ShortcutImpl<shelf_List>);
CLS_INSTANCE(shelf, ddr_MemberShortcut<shelf_Shelf, shelf_List, 1>);
CLS_INSTANCE(shelf, ddr_Shortcut<rgnC_Region>);
CLS_INSTANCE(shelf, ddr_ShortcutImpl<rgnC_Region>);
CLS_INSTANCE(shelf, ddr_SequenceShortcut<shelf_List, rgnC_Region, 1>);

namespace {

using Conditions = kprC_PropagatingContainer<kbcC_BC>;
using Refusal = nex_CmdException<cow_String, 1>;

constexpr ddr_ModuleClass shelfClasses[] = {
    ddr_ClassOf<shelf_Shelf>(7),
    ddr_ClassOf<ddr_Shortcut<shelf_Shelf>>(7),
    ddr_ClassOf<ddr_ShortcutImpl<shelf_Shelf>>(7),
    ddr_ClassOf<ddr_MemberShortcut<ddr_Model, shelf_Shelf, 1>>(7),
    ddr_ClassOf<ddr_Shortcut<shelf_List>>(7),
    ddr_ClassOf<ddr_ShortcutImpl<shelf_List>>(7),
    ddr_ClassOf<ddr_MemberShortcut<shelf_Shelf, shelf_List, 1>>(7),
    ddr_ClassOf<ddr_Shortcut<rgnC_Region>>(7),
    ddr_ClassOf<ddr_ShortcutImpl<rgnC_Region>>(7),
    ddr_ClassOf<ddr_SequenceShortcut<shelf_List, rgnC_Region, 1>>(7),
};

class ShortcutTest : public testing::Test {
 protected:
  ShortcutTest() {
    TVOOdbAttrEO_initialize(depth_);
    shelf_.Initialize(depth_);
  }
  ~ShortcutTest() override {
    shelf_.Finalize(depth_);
    TVOOdbAttrEO_finalize(depth_);
  }

  template <class T>
  static ddr_Shortcut<T> Reloaded(ddr_Shortcut<T> const& shortcut) {
    cls_Database database;
    {
      cls_WriteSession session(database);
      cls_WriteVisitor(session).WriteObject(shortcut);
    }
    database.Complete();
    cls_ReadSession session(database);
    return ddr_Shortcut<T>(cls_ReadVisitor(session));
  }
  static ddr_Shortcut<Conditions> BCs() {
    return ddr_Shortcut<Conditions>(new ddr_MemberShortcut<ddr_Model, Conditions, 1>());
  }
  static ddr_Shortcut<kbcC_BC> BC(char const* key) {
    return ddr_Shortcut<kbcC_BC>(new ddr_DictionaryShortcut<Conditions, kbcC_BC, 1>(BCs(), key));
  }
  static ddr_Shortcut<rgnC_Region> Region(int index) {
    ddr_Shortcut<shelf_Shelf> const shelf(new ddr_MemberShortcut<ddr_Model, shelf_Shelf, 1>());
    ddr_Shortcut<shelf_List> const regions(new ddr_MemberShortcut<shelf_Shelf, shelf_List, 1>(shelf));
    return ddr_Shortcut<rgnC_Region>(new ddr_SequenceShortcut<shelf_List, rgnC_Region, 1>(regions, index));
  }

 private:
  int depth_ = 0;
  ddr_Module shelf_{{.id = shelf_ModuleId, .types = shelf_Rows, .classes = shelfClasses}};
};

}  // namespace

TEST_F(ShortcutTest, SavedAndReadAgainLeadsToTheSameObject) {
  ddr_Model model;
  Conditions& conditions = BCs().Get(model);
  conditions.UpdateSteps({kprC_StepNameProcedurePair("Initial", {})}, "", false);
  kbcC_DisplacementBC condition;
  condition.Insert("Initial", kbcC_DisplacementBCState());
  conditions.ForcedInsert("Bob's", condition);
  shelf_Shelf shelf;
  shelf.regions.Append(rgnC_Region("top"));
  shelf.regions.Append(rgnC_Region("bottom"));
  model.extensions.Insert("shelf", new shelf_Shelf(shelf));

  ddr_Shortcut<kbcC_BC> const bc = Reloaded(BC("Bob's"));
  EXPECT_EQ(bc.Path(), "bcs.Bob's");
  EXPECT_EQ(bc.PythonPath(), "boundaryConditions['Bob\\'s']");
  EXPECT_EQ(bc.Name(), "Bob's");
  EXPECT_TRUE(bc.Impl().InModel() && !bc.Impl().InOdb() && !bc.Impl().InSession());
  EXPECT_EQ(&bc.ConstGet(model), &BCs().ConstGet(model).ConstGet("Bob's"));

  ddr_Shortcut<rgnC_Region> const region = Reloaded(Region(1));
  EXPECT_EQ(region.Path(), "shelf.regions.1");
  EXPECT_EQ(region.PythonPath(), "shelf.regionArray[1]");
  EXPECT_EQ(region.ConstGet(model).name, "bottom");

  // Writing through a shortcut leaves a copy of the model as it was.
  ddr_Model const copy = model;
  region.Get(model).name = "side";
  bc.Get(model).fieldName = "F";
  EXPECT_EQ(region.ConstGet(model).name, "side");
  EXPECT_EQ(region.ConstGet(copy).name, "bottom");
  EXPECT_EQ(bc.ConstGet(model).fieldName, "F");
  EXPECT_EQ(bc.ConstGet(copy).fieldName, "");
}

TEST_F(ShortcutTest, WithoutAValueOrAnObjectRefuses) {
  ddr_Model model;
  ddr_Shortcut<kbcC_BC> const none = Reloaded(ddr_Shortcut<kbcC_BC>());
  EXPECT_FALSE(none.HasValue());
  EXPECT_EQ(none.Path(), "");
  EXPECT_THROW(none.ConstGet(model), Refusal);
  EXPECT_THROW(BC("BC-1").Get(model), Refusal);
  EXPECT_THROW(Region(0).ConstGet(model), Refusal);
  model.extensions.Insert("shelf", new shelf_Shelf());
  for (int const beyond : {-1, 0}) EXPECT_THROW(Region(beyond).Get(model), Refusal) << beyond;
}
