#include <set>

#include "../StepPlan.h"
#include "cls_Registrar.h"
#include "dbc_ModelFile.h"
#include "kbcC.h"

namespace {

constexpr char const* passes = "passes";

std::string Words(int error) {
  return Refusal([error] { kbcC_Assert(false, error); });
}

/// "magnitude=2 dof=11,12": gives values as a script does.
template <class Object>
void Give(Object& object, std::string const& values) {
  std::istringstream words(values);
  for (std::string word; words >> word;) {
    std::size_t const equals = word.find('=');
    cls_Attribute const* const attribute = object.DynAttributes().Find(word.substr(0, equals));
    ASSERT_NE(attribute, nullptr) << object.DynAttributes().Name().CStr() << " has no " << word;
    auto* const propagating = dynamic_cast<mdl_PropAttrBase*>(attribute->Embedded(object));
    std::string const value = word.substr(equals + 1);
    ASSERT_TRUE(propagating != nullptr ? propagating->SetValueText(value) : attribute->SetText(object, value)) << word;
  }
}

template <class BC>
using StateOf = std::remove_cvref_t<decltype(std::declval<BC const&>().ConstGetState(cow_String()))>;

template <class BC>
StateOf<BC> State(std::string const& values) {
  StateOf<BC> state;
  Give(state, values);
  return state;
}

/// A condition that step A creates, over no steps yet.
template <class BC>
BC Created(std::string const& object, std::string const& state, char const* step = "A") {
  BC bc;
  Give(bc, object);
  bc.Insert(step, State<BC>(state));
  return bc;
}

template <class BC>
BC Over(std::string const& plan, std::string const& object, std::string const& state, char const* step = "A") {
  BC bc = Created<BC>(object, state, step);
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
    Give(*bc, kind.object);
    Give(*state, kind.state);
    bc->Insert(kind.createStep, *state);
    ASSERT_EQ(Refusal([&] { model.Insert(kind.name, *bc); }), passes);
    kbcC_BC& stored = model.Get(kind.name);
    if (kind.editStep != nullptr) {
      std::unique_ptr<kbcC_BCState> const edit(static_cast<kbcC_BCState const*>(stored.StateIn(kind.editStep))->Copy());
      Give(*edit, kind.edit);
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

template <class BC>
struct Refused {
  int error;  ///< 0: passes
  char const* plan;
  char const* object;
  char const* state;
  char const* createStep = "A";
};

template <class BC>
void CheckRefusals(std::initializer_list<Refused<BC>> rows) {
  for (auto const& row : rows) {
    EXPECT_EQ(Refusal([&] { Over<BC>(row.plan, row.object, row.state, row.createStep); }),
              row.error == 0 ? passes : Words(row.error))
        << BC::Attributes().Name().CStr() << ", " << row.plan << ", " << row.object << ", " << row.state;
  }
}

TEST(OtherConditionsTest, RefuseWhatTheirKindDoes) {
  CheckRefusals<kbcC_PorePressureBC>({
      {0, "A", "fixed=true", "magnitude=0"},
      {16, "A", "fixed=true", "magnitude=1"},
      {0, "A!", "fixed=true", "magnitude=1"},
      {25, "A", "fixed=true", "magnitude=0", "Initial"},
      {16, "A", "fixed=true", "magnitude=1", "Initial"},
      {6, "A", "", "magnitude=1", "Initial"},
      {0, "A", "", "magnitude=0", "Initial"},
      {60, "A", "distribution=FIELD fixed=true", "magnitude=1"},
      {0, "A", "fixed=true suppressionState=SUPPRESSED_ATTRIBUTE", "magnitude=1"},
  });
  CheckRefusals<kbcC_TemperatureBC>({
      {0, "A:H", "useExtendedDof=true", "dof=11,31"},
      {43, "A:H", "useExtendedDof=true", "dof=11,32"},
      {43, "A:H", "", "dof=10"},
      {40, "A:H", "useExtendedDof=true", "magnitude=1"},
      {0, "A:H!", "useExtendedDof=true", "magnitude=1"},
      {16, "A:H", "useExtendedDof=true fixed=true", "magnitude=1"},
      {45, "A", "", "magnitude=1"},
  });
  CheckRefusals<kbcC_SubmodelBC>({{0, "A", "", "dof=1"}, {45, "A:F", "", "dof=1"}, {45, "A", "", "dof=1", "Initial"}});
  CheckRefusals<kbcC_SecondaryBaseBC>({
      {91, "A:F", "dofs=1", ""},
      {92, "A:F", "regions=left,right dofs=1,2", ""},
      {92, "A:F", "regions=left dofs=1;2", ""},
      {94, "A:F", "regions=left dofs=7,2,3,4,5,6,7", ""},
      {93, "A:F", "regions=left,right dofs=1,2,3,4,5,6;7", ""},
      {0, "A:F", "regions=left,right dofs=1,2,3,4,5,6;0", ""},
      {45, "A", "dofs=1", ""},
  });
  CheckRefusals<kbcC_MagneticVectorPotentialBC>({
      {0, "A:h", "distribution=USER_DEFINED", "component1=1"},
      {90, "A:h", "distribution=FIELD", "component1=1"},
      {90, "A:h", "distribution=DISCRETE_FIELD fieldName=wind", "component1=1"},
  });
  CheckRefusals<kbcC_EulerianBC>({
      {106, "A:E", "", "inflowType=VOID outflowType=NONE"},
      {106, "A:E", "", "outflowType=NONE"},
      {0, "A:E", "", "inflowType=NONE outflowType=NONE"},
      {45, "A:P", "", ""},
      {45, "A:F", "", ""},
  });
  CheckRefusals<kbcC_EulerianMotionBC>({
      {0, "A:E", "", "expansionRatio1=1 contractionRatio2=0 contractionRatio3=1 aspectRatioLimit=1 bufferSize=0"},
      {70, "A:E", "", "expansionRatio3=0.5"},
      {71, "A:E", "", "contractionRatio1=-0.5"},
      {71, "A:E", "", "contractionRatio1=1.5"},
      {72, "A:E", "", "aspectRatioLimit=0.5"},
      {73, "A:E", "", "displacementTolerance=-1"},
      {74, "A:E", "", "volumeThreshold=1.5"},
      {75, "A:E", "", "bufferSize=-1"},
  });
  CheckRefusals<kbcC_RetainedNodalDofsBC>({{0, "A:u", "", "u1=true"}, {45, "A", "", "u1=true"}});
}

TEST(OtherConditionsTest, HeldQuantitiesDoNotMoveToTheFirstAnalysisStep) {
  auto const moved = [](auto bc) {
    bc.fixed = true;
    bc.Initialize(Steps("A:E B:E"));
    return Refusal([&] { bc.Move("B", "A"); });
  };
  EXPECT_EQ(moved(Created<kbcC_AcousticPressureBC>("", "magnitude=0", "B")), Words(107));
  // Cavities are no such quantity.
  EXPECT_EQ(moved(Created<kbcC_FluidCavityPressureBC>("", "magnitude=0", "B")), passes);
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
  bc.Insert("B", State<BC>("magnitude=7"));
  bc.Deactivate("B");
  EXPECT_EQ(Statuses(bc), settled);
  EXPECT_EQ(bc.StateIn("B"), nullptr);
  bc.Deactivate("A");
  bc.Reset("F");
  EXPECT_EQ(Statuses(bc), settled);
  EXPECT_EQ(Refusal([&] { bc.ValidInALoadCase("D", true); }), Words(48));

  std::set<int> const active{1, 2, 3, 8};
  for (int status = 0; status < 17; ++status) {
    auto const value = static_cast<mdl_PropagationStatusEnm>(status);
    std::string const words = status <= 8 ? passes : Words(47);
    bool isActive = false, isPropagated = false, isBuiltIn = false;
    EXPECT_EQ(Refusal([&] { isActive = bc.IsActive(value); }), words) << status;
    EXPECT_EQ(Refusal([&] { isPropagated = bc.IsPropagated(value); }), words) << status;
    EXPECT_EQ(Refusal([&] { isBuiltIn = bc.IsBuiltIn(value); }), words) << status;
    EXPECT_EQ(isActive, active.contains(status)) << status;
    EXPECT_EQ(isPropagated, status == 2) << status;
    EXPECT_EQ(isBuiltIn, status == 8) << status;
  }
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
  BC elsewhere = Created<BC>("", "magnitude=1");
  elsewhere.ForcedInitialize(Steps("A"));
  EXPECT_EQ(Refusal([&] { elsewhere.UpdateStates(); }), Words(45));
}

// ---- magnitudes

TEST(DistributedBCTest, GivesTheMagnitudeThatTheProcedureUses) {
  kbcC_AcousticPressureBC bc = Over<kbcC_AcousticPressureBC>("A:E B:D C:F", "", "magnitude=2");
  bc.Insert("B", State<kbcC_AcousticPressureBC>("complexMagReal=3 complexMagImag=-4"));
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
  bc.Insert("B", State<BC>("buckleCase=BUCKLING_MODES"));
  EXPECT_EQ(Statuses(bc), (std::vector<int>{0, 1, 10, 2}));
  EXPECT_EQ(bc.ConstGetState("C").buckleCase, kbcC_BucklingCaseEnm::NOT_APPLICABLE);
  for (char const* step : {"B", "C"}) {
    BC edited = bc;
    EXPECT_EQ(Refusal([&] { edited.Insert(step, State<BC>("typeName=PINNED")); }), Words(46)) << step;
  }
  bc.Insert("A", State<BC>("typeName=PINNED"));
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
