#include <gtest/gtest.h>

#include "kloC_Load.h"
#include "kloC_LoadTypes.h"
#include "kprC_LabelsBitMap.h"

namespace {

using namespace kprC_Procedure;

constexpr int id(unsigned int typeId) { return static_cast<int>(typeId); }
constexpr int BodyForce = id(kloC_TypeId("kloC_BodyForce"));

std::vector<cow_String> Offered(int procedure) {
  std::vector<cow_String> labels;
  for (auto const& menu : kloC_Family::OfferedTypes(procedure)) {
    for (cow_String const& label : menu.labels) labels.push_back(label);
  }
  return labels;
}

TEST(LoadTypesByStepTest, TestOfATypeAgreesWithTheMenus) {
  auto const& labels = kloC_LoadTypeLabelMap::Instance();
  ASSERT_EQ(labels.Size(), 43);
  auto procedures = kprC_LabelsBitMap::Instance().Ids();
  ASSERT_EQ(procedures.Length(), 34);
  procedures.Append(0U);
  procedures.Append(1U);
  int all = 0;
  for (unsigned int const procedure : procedures) {
    std::vector<cow_String> const offered = Offered(id(procedure));
    for (unsigned int const type : labels.Keys()) {
      bool const valid = kloC_isValidLoadTypeforStep(id(type), id(procedure));
      EXPECT_EQ(std::count(offered.begin(), offered.end(), labels.Label(type)), valid ? 1 : 0)
          << labels.Label(type) << " in " << procedure;
      EXPECT_EQ(kloC_isOfferedLoadTypeforStep(id(type), id(procedure)), valid);
      all += valid ? 1 : 0;
    }
  }
  EXPECT_EQ(all, 361);
}

TEST(LoadTypesByStepTest, SomeStepsTakeFewLoadsOrNone) {
  for (int const procedure : {0, id(Anneal), id(Frequency)}) EXPECT_TRUE(Offered(procedure).empty()) << procedure;
  EXPECT_TRUE(kloC_isValidLoadTypeforStep(BodyForce, id(Flow)));
  EXPECT_FALSE(kloC_isValidLoadTypeforStep(id(kloC_TypeId("kloC_Pressure")), id(Flow)));
  EXPECT_EQ(kloC_getMechanicalLoadTypesforStep(id(Flow), 1), (cow_List<cow_String>{"Body force", "Gravity"}));
  // What stands apart in a row by procedure.
  EXPECT_EQ(kloC_getMechanicalLoadTypesforStep(id(Static), 0).Length(), 18);
  EXPECT_EQ(kloC_getMechanicalLoadTypesforStep(id(Geostatic), 0).Length(), 15);
  EXPECT_EQ(kloC_getMechanicalLoadTypesforStep(id(SubstructureGenerate), 0).Length(), 12);
  EXPECT_EQ(kloC_getMechanicalLoadTypesforStep(id(StaticLinearPerturbation), 0).Length(), 18);
  cow_List<cow_String> const buckle = kloC_getMechanicalLoadTypesforStep(id(Buckle), 0);
  EXPECT_EQ(buckle.Last(), "Inertia relief");
  EXPECT_EQ(buckle.Length(), 15);
  // Two kinds have a label and no menu.
  for (char const* name : {"Hydrostatic fluid flux", "Pressure penetration (NYI)"}) {
    for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
      std::vector<cow_String> const offered = Offered(id(row.id));
      EXPECT_EQ(std::count(offered.begin(), offered.end(), cow_String(name)), 0);
    }
  }
  for (int const type : {id(kloC_TypeId("kloC_Load")), id(kloC_TypeId("kloC_Scalar")), 0}) {
    EXPECT_THROW(kloC_isValidLoadTypeforStep(type, id(Static)), cow_KeyError) << type;
    EXPECT_FALSE(kloC_isOfferedLoadTypeforStep(type, id(Static))) << type;
  }
}

}  // namespace
