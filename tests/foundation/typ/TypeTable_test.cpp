#include <gtest/gtest.h>

#include <string>

#include "nex_DynamicCast.h"
#include "nex_Exception.h"
#include "typ_FoundationTypes.h"
#include "typ_Module.h"

namespace {

constexpr unsigned short moduleId = 664;
constexpr typ_Row rows[] = {
    {1, "kbcC_BC", ""},
    {2, "kbcC_DisplacementBC", "kbcC_BC"},
    {3, "kbcC_Container", "mdl_Repository"},
    {4, "kbcC_ConnDisplacementBC", "kbcC_DisplacementBC"},
};
constexpr unsigned int bc = typ_Id(moduleId, rows, "kbcC_BC");
constexpr unsigned int connector = typ_Id(moduleId, rows, "kbcC_ConnDisplacementBC");
static_assert(bc == 43515905 && connector == bc + 3);

constexpr typ_Row gap[] = {{1, "a", ""}, {3, "b", ""}};
constexpr typ_Row twice[] = {{1, "a", ""}, {2, "b", ""}, {3, "a", ""}};
static_assert(typ_RowsInOrder(rows) && !typ_RowsInOrder(gap) && !typ_RowsInOrder(twice));

class TypeTableTest : public testing::Test {
 protected:
  TypeTableTest() { typ_InitializeFoundation(); }
  ~TypeTableTest() override {
    typ_ArchCompTable::RemoveEntry(moduleId);
    typ_FinalizeFoundation();
  }
};

/// The message of the fault that `act` raises.
template <class Act>
std::string FaultOf(Act act) {
  try {
    act();
  } catch (nex_PrimException<cow_String, 3> const& error) {
    return error.what();
  }
  return "no fault";
}

}  // namespace

TEST_F(TypeTableTest, NumbersRowsAndFollowsParentsAcrossModules) {
  typ_Module const module(moduleId, rows);
  module.Insert();
  EXPECT_STREQ(typ_ArchCompTable::GetName(bc), "kbcC_BC");
  EXPECT_EQ(typ_ArchCompTable::FindId("kbcC_ConnDisplacementBC"), connector);
  EXPECT_TRUE(typ_ArchCompTable::IsParent(bc, bc));
  EXPECT_TRUE(typ_ArchCompTable::IsParent(bc, connector));
  EXPECT_FALSE(typ_ArchCompTable::IsParent(connector, bc));
  EXPECT_TRUE(typ_ArchCompTable::IsParent(0xa0002, bc + 2));
  EXPECT_FALSE(typ_ArchCompTable::IsParent(0, 0));
  for (unsigned int const unknown : {0u, bc - 1, bc + 4, 0xFFFFFFFFu}) {
    EXPECT_STREQ(typ_ArchCompTable::GetName(unknown), "") << unknown;
  }

  EXPECT_NO_THROW(nex_canDynamicCastRef(bc, connector, "a.cpp", 1));
  EXPECT_EQ(FaultOf([] { nex_canDynamicCastRef(connector, bc, "a.cpp", 1); }),
            "An object of type \"kbcC_BC\" (0x2980001) is not a \"kbcC_ConnDisplacementBC\" (0x2980004).");

  module.Remove();
  EXPECT_STREQ(typ_ArchCompTable::GetName(bc), "");
  EXPECT_EQ(typ_ArchCompTable::FindId("kbcC_BC"), 0u);
  EXPECT_EQ(typ_ArchCompTable::FindId("mdl_Repository"), 0xa0001u);
}

TEST_F(TypeTableTest, RefusesAnotherTableForAModule) {
  typ_Module const module(moduleId, rows);
  constexpr typ_Row otherRows[] = {{1, "kloC_Load", ""}};
  typ_Module const other(moduleId, otherRows);
  module.Insert();
  EXPECT_NO_THROW(module.Insert());
  EXPECT_EQ(FaultOf([&] { other.Insert(); }),
            "Type table of module 664 is that of \"kbcC_BC\" (4 rows); that of \"kloC_Load\" (1 rows) cannot be entered.");
  EXPECT_STREQ(typ_ArchCompTable::GetName(bc), "kbcC_BC");
}

TEST_F(TypeTableTest, RefusesAnUnknownParentAndSurvivesACycle) {
  constexpr typ_Row orphan[] = {{1, "a", "nobody"}};
  EXPECT_EQ(FaultOf([&] { typ_Module(moduleId, orphan); }),
            "Type table of module 664, row 1 (\"a\"): the parent \"nobody\" is unknown.");
  constexpr typ_Row cycle[] = {{1, "a", "b"}, {2, "b", "a"}};
  typ_Module const module(moduleId, cycle);
  module.Insert();
  EXPECT_FALSE(nex_canDynamicCastPtr(0xa0001, bc));
}

TEST_F(TypeTableTest, FoundationTypesStandWhileAnybodyUsesThem) {
  typ_InitializeFoundation();
  typ_FinalizeFoundation();
  EXPECT_STREQ(typ_ArchCompTable::GetName(0x230002), "cls_GenericMap");
}
