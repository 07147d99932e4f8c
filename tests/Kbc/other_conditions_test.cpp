#include <set>

#include "../StepPlan.h"
#include "cls_Registrar.h"
#include "dbc_ModelFile.h"
#include "kbcC.h"

namespace {

using namespace over_steps;

auto& Words = WordsOf<kbcC_BC>;

template <class BC>
BC Over(std::string const& plan, std::string const& attributes, std::string const& values, char const* step = "A") {
  BC bc = Made<BC>(attributes, values, step);
  bc.Initialize(Steps(plan));
  return bc;
}

// ---- all kinds in one model

/// Each kind in a step that takes it, edited in the next.
struct Kind {
  char const* name;
  char const* createStep;
  char const* object;
  char const* state;
  char const* editStep;  ///< none for the kinds that refuse edits
  char const* edit;
  char const* history;  ///< a hexadecimal digit a step
};

constexpr char const* modelPlan =
    "Heat:H Heat2:H Diffuse:d Diffuse2:d Cell:c Cell2:c Blast:E Blast2:E Load Load2 Keep:u Wave:h "
    "Modes:F Shake:M Sweep:D Duct:W Last";

constexpr Kind kinds[] = {
    {"kbcC_TemperatureBC", "Heat", "useExtendedDof=true", "magnitude=2 dof=11,12", "Heat2", "dof=11,31",
     "013662266666688866"},
    {"kbcC_PorePressureBC", "Load", "", "magnitude=2", "Load2", "magnitude=3", "000000000136666662"},
    {"kbcC_AcousticPressureBC", "Blast", "", "magnitude=2", "Blast2", "magnitude=3", "00000001366969C966"},
    {"kbcC_ElectricPotentialBC", "Cell", "", "magnitude=2", "Cell2", "magnitude=3", "000001366226666962"},
    {"kbcC_ElectricPotentialElectrolyteBC", "Cell", "", "magnitude=2", "Cell2", "magnitude=3", "000001366226666962"},
    {"kbcC_IonConcentrationBC", "Cell", "", "magnitude=2", "Cell2", "magnitude=3", "000001366226666962"},
    {"kbcC_ConcentrationBC", "Diffuse", "", "magnitude=2", "Diffuse2", "magnitude=3", "000136666666666666"},
    {"kbcC_MassFlowBC", "Blast", "", "magnitude=2", "Blast2", "magnitude=3", "00000001322669C962"},
    {"kbcC_FluidCavityPressureBC", "Blast", "fluidCavity=tyre", "magnitude=2", "Blast2", "magnitude=3",
     "00000001322969C962"},
    {"kbcC_TypeBC", "Load", "", "typeName=ENCASTRE", nullptr, "", "00000000012969C962"},
    {"kbcC_SymmBC", "Load", "", "", nullptr, "", "00000000012969C962"},
    {"kbcC_SubmodelBC", "Blast", "globalDrivingRegion=cut", "globalStep=1 dof=1,2,3", "Blast2",
     "globalStep=2 globalIncrement=7", "00000001322666C962"},
    {"kbcC_RetainedNodalDofsBC", "Keep", "", "u1=true ur3=true", nullptr, "", "000000000001777777"},
    {"kbcC_SecondaryBaseBC", "Modes", "regions=left,right dofs=1,2;0", "", nullptr, "", "00000000000001C777"},
    {"kbcC_MagneticVectorPotentialBC", "Wave", "", "component1=1 cComponent2imag=2", nullptr, "", "000000000000177777"},
    {"kbcC_EulerianBC", "Blast", "", "definition=BOTH inflowType=VOID outflowType=NON_REFLECTING", "Blast2",
     "inflowType=NONE outflowType=NONE", "000000013666666666"},
    {"kbcC_EulerianMotionBC", "Blast", "instanceName=air followRegion=true", "ctrPosition2=FIXED expansionRatio1=2",
     "Blast2", "negPosition3=FIXED contractionRatio2=0.5", "000000013666666666"},
    {"kbcC_FluidInletOutletBC", "Duct", "", "momentumType=VELOCITY vx=3 vxAmp=ramp", nullptr, "", "000000000000000016"},
    {"kbcC_FluidWallConditionBC", "Duct", "", "wallConditionType=NO_SLIP thermalEnergyType=HEAT_FLUX heatFlux=4",
     nullptr, "", "000000000000000016"},
};

cls_AttributeTable const& TableOf(std::string const& name) {
  for (auto const& [id, metadata] : cls_ClassRegistrar::Present().All()) {
    if (metadata->Name().View() == name) return *metadata->Attributes();
  }
  throw std::out_of_range(name);
}

template <class Base>
std::unique_ptr<Base> New(cls_AttributeTable const& table) {
  auto const* const metadata = cls_ClassRegistrar::Present().Find(table.TypeId());
  return std::unique_ptr<Base>(static_cast<Base*>(metadata->New()));
}

std::string Digits(kbcC_BC const& bc) {
  std::string digits;
  for (int const status : Statuses(bc)) digits += "0123456789ABCDEF"[status];
  return digits;
}

TEST(OtherConditionsTest, EachKindLivesInAModel) {
  kprC_PropagatingContainer<kbcC_BC> model;
  model.UpdateSteps(Steps(modelPlan), "", false);
  for (Kind const& kind : kinds) {
    SCOPED_TRACE(kind.name);
    cls_AttributeTable const& table = TableOf(kind.name);
    auto const bc = New<kbcC_BC>(table);
    auto const state = New<kbcC_BCState>(*table.StepState());
    SetAttributes(*bc, kind.object);
    SetAttributes(*state, kind.state);
    bc->Insert(kind.createStep, *state);
    ASSERT_EQ(Refusal([&] { model.Insert(kind.name, *bc); }), passes);
    kbcC_BC& stored = model.Get(kind.name);
    if (kind.editStep != nullptr) {
      std::unique_ptr<kbcC_BCState> const edit(static_cast<kbcC_BCState const*>(stored.StateIn(kind.editStep))->Copy());
      SetAttributes(*edit, kind.edit);
      ASSERT_EQ(Refusal([&] { stored.Insert(kind.editStep, *edit); }), passes);
    }
    EXPECT_EQ(Digits(stored), kind.history);
    // What a model file keeps, but for the steps, whose classes are not what is asked here.
    std::unique_ptr<kbcC_BC> const kept(stored.Copy());
    for (cow_String const& step : kept->StepNames()) kept->GetStateQuad(step).procedure = kprC_StepHolder();
    auto const read = dbc_DecodeObject(dbc_EncodeObject(*kept), "model");
    EXPECT_TRUE(cls_EqualValues(*read, *kept));
    static_cast<kbcC_BC&>(*read).Initialize(Steps(modelPlan));
    EXPECT_EQ(Digits(static_cast<kbcC_BC&>(*read)), kind.history);
  }
}

TEST(OtherConditionsTest, EveryLabelIsOfAConditionThatCanBeMade) {
  for (unsigned int const type : kbcC_BCTypeLabelMap::Instance().Keys()) {
    auto const* const metadata = cls_ClassRegistrar::Present().Find(type);
    ASSERT_NE(metadata, nullptr) << type;
    std::unique_ptr<cls_Persistent> const object(metadata->New());
    ASSERT_NE(object, nullptr) << metadata->Name().CStr();
    EXPECT_EQ(object->DynTypeId(), type);
    cls_AttributeTable const& table = object->DynAttributes();
    EXPECT_EQ("kbcC_" + std::string(table.ScriptingName().View()), table.Name().View());
    ASSERT_NE(table.StepState(), nullptr);
    EXPECT_EQ(table.StepState()->Name().View(), std::string(table.Name().View()) + "State");
  }
}

// ---- what each kind refuses

TEST(OtherConditionsTest, RefuseWhatTheirKindDoes) {
  ExpectRefused<kbcC_PorePressureBC>({
      {0, "fixed=true", "magnitude=0"},
      {16, "fixed=true", "magnitude=1"},
      {0, "fixed=true", "magnitude=1", "A!"},
      {25, "fixed=true", "magnitude=0", "A", "Initial"},
      {16, "fixed=true", "magnitude=1", "A", "Initial"},
      {6, "", "magnitude=1", "A", "Initial"},
      {0, "", "magnitude=0", "A", "Initial"},
      {60, "distribution=FIELD fixed=true", "magnitude=1"},
      {0, "fixed=true suppressionState=SUPPRESSED_ATTRIBUTE", "magnitude=1"},
  });
  ExpectRefused<kbcC_TemperatureBC>({
      {0, "useExtendedDof=true", "dof=11,31", "A:H"},
      {43, "useExtendedDof=true", "dof=11,32", "A:H"},
      {43, "", "dof=10", "A:H"},
      {40, "useExtendedDof=true", "magnitude=1", "A:H"},
      {0, "useExtendedDof=true", "magnitude=1", "A:H!"},
      {16, "useExtendedDof=true fixed=true", "magnitude=1", "A:H"},
      {45, "", "magnitude=1"},
  });
  ExpectRefused<kbcC_SubmodelBC>({{0, "", "dof=1"}, {45, "", "dof=1", "A:F"}, {45, "", "dof=1", "A", "Initial"}});
  ExpectRefused<kbcC_SecondaryBaseBC>({
      {91, "dofs=1", "", "A:F"},
      {92, "regions=left,right dofs=1,2", "", "A:F"},
      {92, "regions=left dofs=1;2", "", "A:F"},
      {94, "regions=left dofs=7,2,3,4,5,6,7", "", "A:F"},
      {93, "regions=left,right dofs=1,2,3,4,5,6;7", "", "A:F"},
      {0, "regions=left,right dofs=1,2,3,4,5,6;0", "", "A:F"},
      {45, "dofs=1", ""},
  });
  ExpectRefused<kbcC_MagneticVectorPotentialBC>({
      {0, "distribution=USER_DEFINED", "component1=1", "A:h"},
      {90, "distribution=FIELD", "component1=1", "A:h"},
      {90, "distribution=DISCRETE_FIELD fieldName=wind", "component1=1", "A:h"},
  });
  ExpectRefused<kbcC_EulerianBC>({
      {106, "", "inflowType=VOID outflowType=NONE", "A:E"},
      {106, "", "outflowType=NONE", "A:E"},
      {0, "", "inflowType=NONE outflowType=NONE", "A:E"},
      {45, "", "", "A:P"},
      {45, "", "", "A:F"},
  });
  ExpectRefused<kbcC_EulerianMotionBC>({
      {0, "", "expansionRatio1=1 contractionRatio2=0 contractionRatio3=1 aspectRatioLimit=1 bufferSize=0", "A:E"},
      {70, "", "expansionRatio3=0.5", "A:E"},
      {71, "", "contractionRatio1=-0.5", "A:E"},
      {71, "", "contractionRatio1=1.5", "A:E"},
      {72, "", "aspectRatioLimit=0.5", "A:E"},
      {73, "", "displacementTolerance=-1", "A:E"},
      {74, "", "volumeThreshold=1.5", "A:E"},
      {75, "", "bufferSize=-1", "A:E"},
  });
  ExpectRefused<kbcC_RetainedNodalDofsBC>({{0, "", "u1=true", "A:u"}, {45, "", "u1=true"}});
}

TEST(OtherConditionsTest, HeldQuantitiesDoNotMoveToTheFirstAnalysisStep) {
  auto const moved = [](auto bc) {
    bc.fixed = true;
    bc.Initialize(Steps("A:E B:E"));
    return Refusal([&] { bc.Move("B", "A"); });
  };
  EXPECT_EQ(moved(Made<kbcC_AcousticPressureBC>("", "magnitude=0", "B")), Words(107));
  // Cavities are no such quantity.
  EXPECT_EQ(moved(Made<kbcC_FluidCavityPressureBC>("", "magnitude=0", "B")), passes);
}

TEST(OtherConditionsTest, EulerianBoundariesHaveNoPlaceInPerturbations) {
  kbcC_EulerianBC const boundary;
  kbcC_EulerianMotionBC const motion;
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
    if (!row.perturbation) continue;
    EXPECT_FALSE(boundary.ValidInStep(static_cast<int>(row.id), true, true, 0)) << row.label;
    EXPECT_FALSE(motion.ValidInStep(static_cast<int>(row.id), true, true, 0)) << row.label;
  }
  kbcC_EulerianBC bc = Over<kbcC_EulerianBC>("A:E B:P C:E", "", "");
  EXPECT_EQ(Statuses(bc), (std::vector<int>{0, 1, 6, 2}));
  EXPECT_EQ(Refusal([&] { bc.ValidInALoadCase("A", true); }), Words(49));
}

// ---- temperatures

TEST(TemperatureBCTest, IsBuiltIntoPerturbations) {
  using BC = kbcC_TemperatureBC;
  BC bc = Over<BC>("A:H B:F C:M D:P E:S F:H", "", "magnitude=5");
  std::vector<int> const settled{0, 1, 8, 8, 8, 6, 2};
  EXPECT_EQ(Statuses(bc), settled);
  EXPECT_EQ(bc.StateIn("B"), nullptr);
  EXPECT_FALSE(bc.HasStep("B"));
  EXPECT_EQ(bc.GetMagReal("F"), 5.0);
  // Nothing is there to edit: an edit is dropped, a deactivation has no effect.
  bc.Insert("B", StateWith<BC>("magnitude=7"));
  bc.Deactivate("B");
  EXPECT_EQ(Statuses(bc), settled);
  EXPECT_EQ(bc.StateIn("B"), nullptr);
  bc.Deactivate("A");
  bc.Reset("F");
  EXPECT_EQ(Statuses(bc), settled);
  EXPECT_EQ(Refusal([&] { bc.ValidInALoadCase("D", true); }), Words(48));

  ExpectPredicates(bc, {0, 1, 2, 3, 4, 5, 6, 7, 8}, 47, {{1, 2, 3, 8}, {2}, {8}});
  // The predicates that are no kind's own do not know the status.
  EXPECT_EQ(Refusal([] { BC::IsModified(STATUS_BUILT_IN); }), Words(47));
  EXPECT_EQ(Refusal([] { kbcC_PorePressureBC().IsActive(STATUS_BUILT_IN); }), Words(47));
}

TEST(TemperatureBCTest, UpdateDropsAmplitudesOutsideTime) {
  using BC = kbcC_TemperatureBC;
  BC bc = Over<BC>("A:H", "", "magnitude=0 amplitude=ramp", "Initial");
  bc.UpdateStates();
  EXPECT_EQ(bc.ConstGetState("Initial").amplitude.State(), UNSET);
  EXPECT_EQ(bc.ConstGetState("A").amplitude.ConstGet(), "");
  BC inTime = Over<BC>("A:H", "", "magnitude=1 amplitude=ramp");
  inTime.UpdateStates();
  EXPECT_EQ(inTime.ConstGetState("A").amplitude.ConstGet(), "ramp");
  BC elsewhere = Made<BC>("", "magnitude=1");
  elsewhere.ForcedInitialize(Steps("A"));
  EXPECT_EQ(Refusal([&] { elsewhere.UpdateStates(); }), Words(45));
}

// ---- magnitudes

TEST(DistributedBCTest, GivesTheMagnitudeThatTheProcedureUses) {
  kbcC_AcousticPressureBC bc = Over<kbcC_AcousticPressureBC>("A:E B:D C:F", "", "magnitude=2");
  bc.Insert("B", StateWith<kbcC_AcousticPressureBC>("complexMagReal=3 complexMagImag=-4"));
  kbcC_DistributedBC const& distributed = bc;
  EXPECT_EQ(distributed.GetMagReal("A"), 2.0);
  EXPECT_EQ(distributed.GetMagImag("A"), -1.7976931348623157e308);
  EXPECT_EQ(distributed.GetMagReal("B"), 3.0);
  EXPECT_EQ(distributed.GetMagImag("B"), -4.0);
  EXPECT_EQ(distributed.GetMagState("B"), SET);
  EXPECT_EQ(distributed.GetMagState("C"), PROPAGATED);
  EXPECT_EQ(distributed.ConstGetState("A").magnitude.ConstGet(), 2.0);
  auto const copy = bc.CopiedToStep("C");
  EXPECT_EQ(static_cast<kbcC_BC const&>(*copy).ConstGetStateQuad("C").state.ConstGet().IsModified(), false);
}

// ---- edits of their own kind

TEST(TypeBCTest, KeepsItsTypeFromTheStepThatGaveIt) {
  using BC = kbcC_TypeBC;
  BC bc = Over<BC>("A B:b C", "", "typeName=ENCASTRE");
  // The perturbation starts from zero displacements, and these stay held.
  EXPECT_EQ(bc.ConstGetState("B").typeName.ConstGet(), BC::TypeNameEnm::ENCASTRE);
  bc.Insert("B", StateWith<BC>("buckleCase=BUCKLING_MODES"));
  EXPECT_EQ(Statuses(bc), (std::vector<int>{0, 1, 10, 2}));
  EXPECT_EQ(bc.ConstGetState("C").buckleCase, kbcC_BucklingCaseEnm::NOT_APPLICABLE);
  for (char const* step : {"B", "C"}) {
    BC edited = bc;
    EXPECT_EQ(Refusal([&] { edited.Insert(step, StateWith<BC>("typeName=PINNED")); }), Words(46)) << step;
  }
  bc.Insert("A", StateWith<BC>("typeName=PINNED"));
  EXPECT_EQ(bc.ConstGetState("C").typeName.ConstGet(), BC::TypeNameEnm::PINNED);
  bc.Deactivate("C");
  bc.Reset("C");
  bc.Move("A", "Initial");
  EXPECT_EQ(Statuses(bc), (std::vector<int>{1, 2, 10, 2}));
}

TEST(SymmBCTest, StandsWhereItsListSaysThoughNoMenuOffersIt) {
  kbcC_SymmBC const bc;
  int always = 0, withFlag = 0;
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
    always += bc.ValidInStep(static_cast<int>(row.id), false, false, 0);
    withFlag += bc.ValidInStep(static_cast<int>(row.id), true, false, 0);
  }
  EXPECT_EQ(always, 15);
  EXPECT_EQ(withFlag, 19);
  EXPECT_TRUE(bc.ValidInStep(0, false, false, 0));
  EXPECT_FALSE(bc.ValidInStep(static_cast<int>(kprC_Procedure::HeatTransfer), true, false, 0));
}

TEST(SubmodelBCTest, CarriesTheGlobalStepOfAnEdit) {
  using BC = kbcC_SubmodelBC;
  auto const globalSteps = [](BC const& bc) {
    std::string names;
    for (char const* step : {"A", "B", "C"}) names += std::string(bc.ConstGetState(step).globalStep.View()) + ' ';
    return names;
  };
  BC bc = Over<BC>("A B C", "", "globalStep=1 dof=1,2");
  auto edit = bc.ConstGetState("B");
  edit.globalStep = "2";
  bc.Insert("B", edit);
  EXPECT_EQ(Statuses(bc), (std::vector<int>{0, 1, 3, 2}));
  EXPECT_EQ(globalSteps(bc), "1 2 2 ");
  auto creation = bc.ConstGetState("A");
  creation.globalStep = "4";
  bc.Insert("A", creation);
  EXPECT_EQ(globalSteps(bc), "4 2 2 ");
  bc.Reset("C");
  bc.Remove("B");
  EXPECT_EQ(globalSteps(bc), "4 4 4 ");
  EXPECT_EQ(Refusal([&] { bc.ValidInALoadCase("A", true); }), Words(50));
  EXPECT_EQ(Refusal([] { Made<BC>("", "dof=1").AssertValid(); }), passes) << "it has not met its steps";
}

TEST(SecondaryBaseBCTest, GivesItsRegions) {
  kbcC_SecondaryBaseBC bc = Over<kbcC_SecondaryBaseBC>("A:F B:M C", "regions=left,right dofs=1;2", "");
  bc.regions.Get(1).instance = 1;
  EXPECT_EQ(bc.Regions(RGN_ALL).Length(), 2);
  EXPECT_EQ(bc.Regions(RGN_NAMED).First().name, "left");
  EXPECT_EQ(bc.Regions(RGN_INSTANCE).First().name, "right");
  EXPECT_EQ(Statuses(bc), (std::vector<int>{0, 1, 12, 7}));
}

TEST(FluidBCTest, KeepsWhatOldModelsHave) {
  auto const check = [](auto bc, std::string const& edited, std::string const& discrete) {
    using BC = decltype(bc);
    StateOf<BC> state;
    bc.Insert("A", state);
    bc.Initialize(Steps("A:W B:W"));
    EXPECT_EQ(Statuses(bc), (std::vector<int>{0, 1, 2}));
    for (auto const& edit : std::initializer_list<std::function<void()>>{
             [&] { bc.Insert("B", state); }, [&] { bc.Insert("A", state); }, [&] { bc.Deactivate("B"); },
             [&] { bc.Reset("B"); }, [&] { bc.Remove("B"); }, [&] { bc.Move("A", "B"); }}) {
      EXPECT_EQ(Refusal(edit), edited + " boundary condition cannot be modified.\nCFD models are no longer supported.");
    }
    EXPECT_EQ(Statuses(bc), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(Refusal([&] { bc.Initialize(Steps("A:W")); }), passes);
    bc.csys.SetText("pipe");
    EXPECT_TRUE(bc.AllowedInFlow());
    bc.distribution = kbcC_BC::DISCRETE_FIELD;
    EXPECT_EQ(Refusal([&] { bc.AssertValid(); }),
              "Discrete Fields are not supported as " + discrete + " BC distributions.");
    bc.Suppress(false, false);
    EXPECT_EQ(Refusal([&] { bc.AssertValid(); }), passes);
  };
  check(kbcC_FluidInletOutletBC(), "Fluid inlet/outlet", "Fluid inlet/outlet");
  check(kbcC_FluidWallConditionBC(), "Fluid wall", "Fluid wall condition");
}

}  // namespace
