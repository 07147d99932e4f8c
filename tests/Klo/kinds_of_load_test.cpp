#include <functional>

#include "../Validity.h"
#include "kloC.h"

namespace {

std::string Words(int error) {
  return error == 0 ? "passes" : Refusal([error] { kloC_Assert(false, error); });
}

/// One edit of a valid load and of the state that creates it, as a script types them, and the number that refuses it.
struct Row {
  int error;
  char const* load;
  char const* state;
  char const* plan = "A B";
};

template <class L, class S>
L MakeLoad(std::string const& load, std::string const& state) {
  L made;
  S values;
  SetAttributes(made, load);
  std::istringstream words(state);
  for (std::string word; words >> word;) {
    std::size_t const equals = word.find('=');
    cls_Attribute const* const attribute = S::Attributes().Find(word.substr(0, equals));
    if (attribute == nullptr) {
      ADD_FAILURE() << word;
      continue;
    }
    auto* const propagating = dynamic_cast<mdl_PropAttrBase*>(attribute->Embedded(values));
    std::string const text = word.substr(equals + 1);
    EXPECT_TRUE(propagating != nullptr ? propagating->SetValueText(text) : attribute->SetText(values, text)) << word;
  }
  made.Insert("A", values);
  return made;
}

template <class L, class S>
void ExpectRefusals(std::initializer_list<Row> rows) {
  for (Row const& row : rows) {
    L load = MakeLoad<L, S>(row.load, row.state);
    EXPECT_EQ(Refusal([&] { load.Initialize(Steps(row.plan)); }), Words(row.error))
        << L::Attributes().Name() << ": " << row.load << "; " << row.state << "; " << row.plan;
  }
}

template <class L, class S>
void ExpectRefusalsInSpace(kloC_SpaceEnm space, std::initializer_list<Row> rows) {
  for (Row const& row : rows) {
    L load = MakeLoad<L, S>(row.load, row.state);
    load.Initialize(Steps(row.plan));
    EXPECT_EQ(Refusal([&] { load.AssertValidInSpace(kloC_SpaceEnm::THREE_D); }), "passes") << row.state;
    EXPECT_EQ(Refusal([&] { load.AssertValidInSpace(space); }), Words(row.error)) << row.load << "; " << row.state;
  }
}

}  // namespace

TEST(KindsOfLoadTest, RefuseWhatTheyCannotBe) {
  ExpectRefusals<kloC_RotationalBodyForce, kloC_RotationalBodyForceState>({
      {43, "", "magnitude=1"},
      {43, "centrifugal=true rotaryAcceleration=true coordAxisPt2=0,0,0", "magnitude=1"},
      {56, "centrifugal=true coordAxisPt2=0,0,0", "magnitude=0"},
      {56, "centrifugal=true axisSelPoint1=PICKED axisSelPoint2=PICKED pickedAxisPt1=P pickedAxisPt2=P", "magnitude=1"},
      {0, "rotaryAcceleration=true axisSelPoint1=PICKED pickedAxisPt1=P coordAxisPt2=0,0,0", "magnitude=1"},
      {41, "centrifugal=true", "magnitude=0"},
  });
  ExpectRefusals<kloC_CoriolisForce, kloC_CoriolisForceState>({
      {56, "coordAxisPt1=0,1,0", "magnitude=1"},
      {0, "", "magnitude=1"},
  });
  ExpectRefusals<kloC_ConcentratedHeatFlux, kloC_ConcentratedHeatFluxState>({
      {40, "dof=10", "magnitude=1", "A:H"}, {0, "dof=31", "magnitude=1", "A:H"}, {40, "dof=32", "magnitude=1", "A:H"},
      {34, "dof=32", "magnitude=1", "A"},
  });
  ExpectRefusals<kloC_BodyHeatFlux, kloC_BodyHeatFluxState>({
      {41, "", "", "A:H"}, {0, "", "tableCollectionName=T", "A:H"}, {0, "distType=USER_DEFINED", "", "A:H"},
  });
  ExpectRefusals<kloC_ReferencePressure, kloC_ReferencePressureState>({
      {77, "", "magnitude=-1", "A:W"}, {0, "", "magnitude=0", "A:W"},
  });
  ExpectRefusals<kloC_SubstructureLoad, kloC_SubstructureLoadState>({{81, "", ""}, {0, "", "m_LoadCaseNames=one,two"}});
  ExpectRefusals<kloC_LineLoad, kloC_LineLoadState>({
      {0, "distType=USER_DEFINED", ""}, {69, "distribution=FIELD", "c1=1"}, {0, "distType=FIELD fieldName=f", "c1=1"},
  });
}

TEST(KindsOfLoadTest, PressuresKnowTheirElevations) {
  ExpectRefusals<kloC_Pressure, kloC_PressureState>({
      {19, "distType=HYDROSTATIC", "magnitude=1 hReference=2", "A:E"},
      {0, "distType=HYDROSTATIC", "magnitude=1 hReference=2", "A"},
      {20, "distType=HYDROSTATIC", "magnitude=0 hReference=2 hZero=2"},
      {0, "distType=VISCOUS", "magnitude=1", "A:E"},
      {69, "distType=FIELD", "magnitude=1"},
  });
  ExpectRefusals<kloC_PipePressure, kloC_PipePressureState>({
      {42, "side=EXTERNAL", "magnitude=1"},
      {0, "side=EXTERNAL diameter=0.1", "magnitude=1"},
      {20, "distType=HYDROSTATIC", "magnitude=1"},
  });
  // An edit takes the use of elevations along.
  kloC_PressureState state;
  kloC_PressureState edit;
  edit.magnitude = 2.0;
  edit.useHydrostatic = true;
  state.Modify(edit);
  EXPECT_TRUE(state.useHydrostatic && state.magnitude == 2.0);
}

TEST(KindsOfLoadTest, TractionsHaveADirection) {
  ExpectRefusals<kloC_SurfaceTraction, kloC_SurfaceTractionState>({
      {64, "", "magnitude=1"},
      {64, "directionVector=0,0,0 csys=C userCsys=U", "magnitude=1"},
      {65, "directionVector=1,0,0 csys=C userCsys=U follower=false", "magnitude=1"},
      {66, "directionVector=1,0,0 csys=C follower=false", "magnitude=1"},
      {0, "directionVector=1,0,0 csys=C follower=false traction=GENERAL", "magnitude=1"},
      {68, "directionVector=1,0,0 fieldName=f", "magnitude=1"},
  });
  ExpectRefusals<kloC_ShellEdgeLoad, kloC_ShellEdgeLoadState>({
      {0, "", "magnitude=1"}, {64, "traction=GENERAL", "magnitude=1"}, {64, "directionVector=0,0,0", "magnitude=1"},
      {66, "traction=MOMENT follower=false", "magnitude=1"},
  });
}

TEST(KindsOfLoadTest, BoltsStayFromTheFirstStepOn) {
  ExpectRefusals<kloC_BoltLoad, kloC_BoltLoadState>({
      {37, "", "magnitude=1", "Z A"}, {37, "", "magnitude=1", "A:P"},
      {38, "", "magnitude=1 boltMethod=FIX_LENGTH"}, {41, "", "boltMethod=ADJUST_LENGTH"}, {0, "", "magnitude=1"},
  });
  auto bolt = MakeLoad<kloC_BoltLoad, kloC_BoltLoadState>("", "magnitude=1");
  bolt.Initialize(Steps("A B C"));
  kloC_BoltLoadState fixed;
  fixed.boltMethod = kloC_BoltLoadMethodEnm::FIX_LENGTH;
  EXPECT_EQ(Refusal([&] { bolt.Insert("B", fixed); }), "passes");
  EXPECT_EQ(Refusal([&] { bolt.Deactivate("B"); }), Words(35));
  EXPECT_EQ(Refusal([&] { bolt.Move("A", "A"); }), "passes");
  EXPECT_EQ(Refusal([&] { bolt.Move("A", "B"); }), Words(36));
  EXPECT_EQ(Refusal([&] { bolt.Move("B", "C"); }), "passes");
  EXPECT_EQ(Refusal([&] { bolt.AssertValidPlace(true, true); }), Words(39));
  bolt.dtmReference = dtmC_DatumRef("axis");
  EXPECT_EQ(Refusal([&] { bolt.AssertValidPlace(true, true); }), Words(55));
  EXPECT_EQ(Refusal([&] { bolt.AssertValidPlace(true, false); }), "passes");
}

TEST(KindsOfLoadTest, InertiaIsReliefOfFreeDirectionsOnly) {
  char const* const all = "u1=true u2=true u3=true ur1=true ur2=true ur3=true";
  ExpectRefusals<kloC_InertiaRelief, kloC_InertiaReliefState>({
      {0, "", all}, {50, "localCsys=C", all}, {0, "localCsys=C", "u1=true fixed=false"}, {51, "", "fixed=true"},
  });
  using L = kloC_InertiaRelief;
  using S = kloC_InertiaReliefState;
  ExpectRefusalsInSpace<L, S>(kloC_SpaceEnm::TWO_D_PLANAR,
                              {{48, "", "u1=true ur1=true"},
                               {50, "localCsys=C", "u1=true u2=true ur3=true"},
                               {0, "localCsys=C", "u1=true u2=true"}});
  ExpectRefusalsInSpace<L, S>(kloC_SpaceEnm::AXISYMMETRIC, {{49, "", "u1=true"}, {0, "", "u2=true"}});
  ExpectRefusalsInSpace<kloC_Gravity, kloC_GravityState>(kloC_SpaceEnm::AXISYMMETRIC,
                                                         {{46, "", "c1=1 c2=-9.8"}, {0, "", "c2=-9.8"}});
  ExpectRefusalsInSpace<kloC_RotationalBodyForce, kloC_RotationalBodyForceState>(
      kloC_SpaceEnm::AXISYMMETRIC, {{44, "rotaryAcceleration=true coordAxisPt2=0,2,0", "magnitude=1"},
                                    {45, "rotaryAcceleration=true", "magnitude=1"},
                                    {0, "centrifugal=true", "magnitude=1"}});
}

TEST(KindsOfLoadTest, EachKindIsInAMenuOfItsCategory) {
  // In the order of the categories.
  constexpr decltype(&kloC_getOtherLoadTypesforStep) menus[] = {
      kloC_getMechanicalLoadTypesforStep,    kloC_getThermalLoadTypesforStep,  kloC_getFluidLoadTypesforStep,
      kloC_getElectricalLoadTypesforStep,    kloC_getMassDiffusionLoadTypesforStep, kloC_getAcousticLoadTypesforStep,
      kloC_getElectroChemicalLoadTypesforStep, kloC_getOtherLoadTypesforStep};
  auto const& labels = kloC_LoadTypeLabelMap::Instance();
  int kinds = 0;
  for (auto const& [type, metadata] : cls_ClassRegistrar::Present().All()) {
    std::unique_ptr<cls_Persistent> const object(metadata->New());
    auto const* const load = dynamic_cast<kloC_Load const*>(object.get());
    if (load == nullptr) continue;
    ++kinds;
    EXPECT_FALSE(metadata->Attributes()->ScriptingName().IsEmpty());
    bool inItsMenu = false;
    for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
      inItsMenu = inItsMenu || menus[load->Category()](static_cast<int>(row.id), 0).IsMember(labels.Label(type));
    }
    bool const offeredNowhere =
        type == kloC_HydroFluidFlow::TypeId() || type == kloC_PressurePenetration::TypeId();
    EXPECT_NE(inItsMenu, offeredNowhere) << metadata->Name();
  }
  EXPECT_EQ(kinds, labels.Size());
}
