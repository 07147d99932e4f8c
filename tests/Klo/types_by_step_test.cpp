#include <gtest/gtest.h>

#include <map>

#include "kloC_Load.h"
#include "kloC_LoadTypes.h"
#include "kprC_LabelsBitMap.h"

namespace {

using namespace kprC_Procedure;

constexpr int id(unsigned int typeId) { return static_cast<int>(typeId); }

TEST(LoadTypesByStepTest, TestOfATypeAgreesWithTheMenus) {
  auto const& labels = kloC_LoadTypeLabelMap::Instance();
  ASSERT_EQ(labels.Size(), 43);
  auto procedures = kprC_LabelsBitMap::Instance().Ids();
  ASSERT_EQ(procedures.Length(), 34);
  procedures.Append(0U);
  procedures.Append(1U);
  for (unsigned int const procedure : procedures) {
    std::vector<cow_String> offered;
    for (auto const& menu : kloC_Family::OfferedTypes(id(procedure))) {
      for (cow_String const& label : menu.labels) offered.push_back(label);
    }
    for (unsigned int const type : labels.Keys()) {
      bool const valid = kloC_isValidLoadTypeforStep(id(type), id(procedure));
      EXPECT_EQ(std::count(offered.begin(), offered.end(), labels.Label(type)), valid ? 1 : 0)
          << labels.Label(type) << " in " << procedure;
      EXPECT_EQ(kloC_isOfferedLoadTypeforStep(id(type), id(procedure)), valid);
    }
  }
}

// By menu: mechanical, thermal, fluid, electrical, electrochemical, mass diffusion, acoustic, other.
TEST(LoadTypesByStepTest, EachProcedureHasItsMenus) {
  std::map<unsigned int, std::vector<int>> const lengths = {
      {Static, {18, 0, 0, 3, 0, 0, 0, 1}}, {ImplicitDynamics, {18, 0, 0, 3, 0, 0, 1, 0}},
      {StaticRiks, {17, 0, 0, 0, 0, 0, 0, 0}}, {Visco, {17, 0, 0, 0, 0, 0, 0, 0}},
      {CoupledTempDisplacement, {16, 3, 0, 0, 0, 0, 0, 0}}, {Soils, {16, 0, 2, 0, 0, 0, 0, 0}},
      {DirectCyclic, {16, 0, 0, 0, 0, 0, 0, 0}}, {Geostatic, {15, 0, 2, 0, 0, 0, 0, 0}},
      {ExplicitDynamics, {11, 0, 0, 0, 0, 0, 1, 0}}, {TempDisplacementDynamics, {11, 3, 0, 0, 0, 0, 1, 0}},
      {StaticLinearPerturbation, {18, 0, 0, 3, 0, 0, 1, 1}}, {SteadyStateDirect, {16, 0, 0, 3, 0, 0, 1, 0}},
      {SteadyStateModal, {16, 0, 0, 0, 0, 0, 1, 0}}, {ModalDynamics, {16, 0, 0, 0, 0, 0, 1, 0}},
      {SteadyStateSubspace, {15, 0, 0, 0, 0, 0, 1, 0}}, {Buckle, {15, 0, 0, 0, 0, 0, 1, 0}},
      {SubspaceDynamics, {14, 0, 0, 0, 0, 0, 1, 0}}, {SubstructureGenerate, {12, 0, 0, 0, 0, 0, 0, 0}},
      {ElecThermalStructural, {14, 3, 0, 4, 0, 0, 0, 0}}, {CoupledThermalElectric, {0, 3, 0, 4, 0, 0, 0, 0}},
      {Flow, {2, 1, 2, 0, 0, 0, 0, 0}}, {HeatTransfer, {0, 3, 0, 0, 0, 0, 0, 0}},
      {MassDiffusion, {0, 0, 0, 0, 0, 3, 0, 0}}, {EmagTimeHarmonic, {0, 0, 0, 2, 0, 0, 0, 0}},
      {CoupledThermalElectrochemical, {0, 0, 0, 0, 3, 0, 0, 0}},
      {CoupledThermalElectrochemStruct, {0, 0, 0, 0, 3, 0, 0, 0}},
      {CoupledThermalElectrochemStructPorepressure, {0, 0, 0, 0, 3, 0, 0, 0}},
  };
  auto procedures = kprC_LabelsBitMap::Instance().Ids();
  procedures.Append(0U);
  for (unsigned int const procedure : procedures) {
    std::vector<int> offered;
    for (auto const& menu : kloC_Family::OfferedTypes(id(procedure))) offered.push_back(menu.labels.Length());
    auto const expected = lengths.find(procedure);
    EXPECT_EQ(offered, expected == lengths.end() ? std::vector<int>(8) : expected->second) << procedure;
  }
  EXPECT_EQ(kloC_getMechanicalLoadTypesforStep(id(Flow), 0), (cow_List<cow_String>{"Body force", "Gravity"}));
  EXPECT_EQ(kloC_getMechanicalLoadTypesforStep(id(Static), 0),
            (cow_List<cow_String>{"Concentrated force", "Moment", "Pressure", "Shell edge load", "Surface traction",
                                  "Pipe pressure", "Body force", "Line load", "Gravity", "Bolt load",
                                  "Generalized plane strain", "Rotational body force", "Coriolis force",
                                  "Connector force", "Connector moment", "Substructure load", "Inertia relief",
                                  "Fluid pressure penetration"}));
  EXPECT_EQ(kloC_getMechanicalLoadTypesforStep(id(StaticLinearPerturbation), 1),
            (cow_List<cow_String>{"Concentrated force", "Moment", "Pressure", "Shell edge load", "Surface traction",
                                  "Body force", "Line load", "Gravity", "Pipe pressure", "Generalized plane strain",
                                  "Rotational body force", "Coriolis force", "Connector force", "Connector moment",
                                  "Inertia relief", "Substructure load", "Bolt load", "Fluid pressure penetration"}));
}

TEST(LoadTypesByStepTest, OnlyTypesWithALabelCanBeAskedFor) {
  for (int const type : {id(kloC_TypeId("kloC_Load")), id(kloC_TypeId("kloC_Scalar")), 0}) {
    EXPECT_THROW(kloC_isValidLoadTypeforStep(type, id(Static)), cow_KeyError) << type;
    EXPECT_FALSE(kloC_isOfferedLoadTypeforStep(type, id(Static))) << type;
  }
}

}  // namespace
