#include <gtest/gtest.h>

#include "kbcC_BCTypes.h"
#include "kbcC_Types.h"
#include "kprC_LabelsBitMap.h"
#include "kprC_Procedures.h"

namespace {

using namespace kprC_Procedure;

constexpr int id(unsigned int typeId) { return static_cast<int>(typeId); }

constexpr decltype(&kbcC_getOtherBCTypesforStep) menus[] = {
    kbcC_getMechanicalBCTypesforStep, kbcC_getFluidBCTypesforStep, kbcC_getElectricalBCTypesforStep,
    kbcC_getOtherBCTypesforStep};

bool IsInAMenu(cow_String const& label, int procedure, int product) {
  for (auto const menu : menus) {
    if (menu(procedure, product, 0).IsMember(label)) return true;
  }
  return false;
}

int Offered(int procedure, int product) {
  int count = 0;
  for (auto const menu : menus) count += menu(procedure, product, 0).Length();
  return count;
}

TEST(BCTypesByStepTest, TestOfATypeAgreesWithTheMenus) {
  auto const& labels = kbcC_BCTypeLabelMap::Instance();
  ASSERT_EQ(labels.Size(), 27);
  auto procedures = kprC_LabelsBitMap::Instance().Ids();
  procedures.Append(0U);
  procedures.Append(1U);
  int offered = 0;
  for (unsigned int const procedure : procedures) {
    for (int product = -1; product <= 5; ++product) {
      for (unsigned int const type : labels.Keys()) {
        bool const valid = kbcC_isValidBCTypeforStep(id(type), id(procedure), product);
        EXPECT_EQ(valid, IsInAMenu(labels.Label(type), id(procedure), product))
            << labels.Label(type) << " in " << procedure << " for product " << product;
        if (product == 0) offered += valid ? 1 : 0;
      }
    }
  }
  EXPECT_EQ(offered, 228);
}

TEST(BCTypesByStepTest, InitialStepAndProductsDecideWhatIsOffered) {
  EXPECT_EQ(Offered(0, 0), 16);
  for (int const product : {2, 4}) EXPECT_EQ(Offered(0, product), 0) << product;
  EXPECT_EQ(Offered(id(ExplicitDynamics), 2), 6);
  EXPECT_EQ(Offered(id(ExplicitDynamics), 4), 13);
  EXPECT_TRUE(kbcC_getElectricalBCTypesforStep(id(EmagTimeHarmonic), 2, 0).IsEmpty());
  EXPECT_EQ(Offered(id(Anneal), 0), 0);
}

TEST(BCTypesByStepTest, MenusKeepTheirOrder) {
  cow_List<cow_String> const frequency{"Symmetry/Antisymmetry/Encastre", "Displacement/Rotation",
                                       "Connector displacement", "Secondary base"};
  EXPECT_EQ(kbcC_getMechanicalBCTypesforStep(id(Frequency), 0, 0), frequency);
  EXPECT_EQ(kbcC_getMechanicalBCTypesforStep(id(Frequency), 0, 1), frequency);
}

TEST(BCTypesByStepTest, RefusesWhatNoMenuHolds) {
  EXPECT_EQ(kbcC_TypeId("kbcC_BC"), 43515905U);
  EXPECT_TRUE(kbcC_isValidBCTypeforStep(id(kbcC_TypeId("kbcC_DisplacementBC")), id(Static)));
  EXPECT_FALSE(kbcC_isValidBCTypeforStep(id(kbcC_TypeId("kbcC_DisplacementBC")), id(ModalDynamics)));
  for (int const type : {id(kbcC_TypeId("kbcC_SymmBC")), id(kbcC_TypeId("kbcC_BC")), id(Static), 0, -1}) {
    EXPECT_THROW(kbcC_isValidBCTypeforStep(type, id(Static)), cow_KeyError) << type;
    EXPECT_FALSE(kbcC_isOfferedBCTypeforStep(type, id(Static), 0)) << type;
  }
}

}  // namespace
