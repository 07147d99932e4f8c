#include <gtest/gtest.h>

#include "TVOOdbAttrEO.h"
#include "cls_Registrar.h"
#include "ddr_Model.h"
#include "kbcC_module.h"
#include "typ_ArchCompTable.h"

namespace {

constexpr unsigned int bc = 43515905;

bool IsUp() { return typ_ArchCompTable::GetName(bc) == std::string("kbcC_BC"); }

void ExpectNothingLeft() {
  EXPECT_STREQ(typ_ArchCompTable::GetName(bc), "");
  EXPECT_EQ(typ_ArchCompTable::FindId("mdl_Extension"), 0u);
  EXPECT_TRUE(cls_ClassRegistrar::Present().All().empty());
  EXPECT_EQ(ddr_Model().extensions.Size(), 0);
}

}  // namespace

TEST(StartStopTest, TheFirstStartAndTheLastEndAct) {
  for (int round = 0; round < 2; ++round) {
    int depth = 7;
    TVOOdbAttrEO_initialize(depth);
    int const raised = depth;
    // The library twice, ten libraries below it, nine modules.
    EXPECT_EQ(raised, 7 + 2 + 10 + 9);
    TVOOdbAttrEO_initialize(depth);
    EXPECT_EQ(depth, raised);
    TVOOdbAttrEO_finalize(depth);
    EXPECT_EQ(depth, raised);
    EXPECT_TRUE(IsUp());
    TVOOdbAttrEO_finalize(depth);
    EXPECT_EQ(depth, 7);
    ExpectNothingLeft();
    TVOOdbAttrEO_finalize(depth);
    EXPECT_EQ(depth, 7);
  }
}

TEST(StartStopTest, CallersInCShareTheStartsWithTheOthers) {
  TVOOdbAttrEO_finalizeC();
  int depth = 0;
  TVOOdbAttrEO_initializeC();
  TVOOdbAttrEO_initialize(depth);
  EXPECT_EQ(depth, 0);
  TVOOdbAttrEO_finalizeC();
  EXPECT_TRUE(IsUp());
  TVOOdbAttrEO_finalize(depth);
  ExpectNothingLeft();
}

TEST(StartStopTest, AModuleThatTheHostHoldsStaysUp) {
  EXPECT_STREQ(kbcC_ArchEntry().Row(1)->name, "kbcC_BC");
  ExpectNothingLeft();
  int host = 0;
  TVOOdbAttrEO_initializeC();
  TVOOdbKbcC_initialize(host);
  EXPECT_EQ(host, 0);
  TVOOdbAttrEO_finalizeC();
  EXPECT_TRUE(IsUp());
  TVOOdbKbcC_finalize(host);
  ExpectNothingLeft();
}

TEST(StartStopTest, AModelHasTheContainersOfTheModules) {
  TVOOdbAttrEO_initializeC();
  {
    ddr_Model const model;
    for (char const* const member : {"steps", "bcs"}) EXPECT_TRUE(model.HasExtension(member)) << member;
    for (auto const& [typeId, metadata] : cls_ClassRegistrar::Present().All()) {
      EXPECT_NE(typ_ArchCompTable::GetName(typeId), std::string()) << metadata->Name().CStr();
    }
  }
  TVOOdbAttrEO_finalizeC();
}
