#include <functional>

#include "../StepPlan.h"
#include "kloC.h"

namespace {

using namespace over_steps;

auto& Words = WordsOf<kloC_Load>;

template <class L>
void ExpectRefusedInSpace(kloC_SpaceEnm space, std::initializer_list<Refused> rows) {
  for (Refused const& row : rows) {
    L load = Made<L>(row.attributes, row.values);
    load.Initialize(Steps(row.plan));
    EXPECT_EQ(Refusal([&] { load.AssertValidInSpace(kloC_SpaceEnm::THREE_D); }), passes) << row.values;
    EXPECT_EQ(Refusal([&] { load.AssertValidInSpace(space); }), Words(row.error)) << row.attributes << "; " << row.values;
  }
}

}  // namespace

TEST(KindsOfLoadTest, RefuseWhatTheyCannotBe) {
  ExpectRefused<kloC_RotationalBodyForce>({
      {43, "", "magnitude=1"},
      {43, "centrifugal=true rotaryAcceleration=true coordAxisPt2=0,0,0", "magnitude=1"},
      {56, "centrifugal=true coordAxisPt2=0,0,0", "magnitude=0"},
      {56, "centrifugal=true axisSelPoint1=PICKED axisSelPoint2=PICKED pickedAxisPt1=P pickedAxisPt2=P", "magnitude=1"},
      {0, "rotaryAcceleration=true axisSelPoint1=PICKED pickedAxisPt1=P coordAxisPt2=0,0,0", "magnitude=1"},
      {41, "centrifugal=true", "magnitude=0"},
  });
  ExpectRefused<kloC_CoriolisForce>({
      {56, "coordAxisPt1=0,1,0", "magnitude=1"},
      {0, "", "magnitude=1"},
  });
  ExpectRefused<kloC_ConcentratedHeatFlux>({
      {40, "dof=10", "magnitude=1", "A:H"}, {0, "dof=31", "magnitude=1", "A:H"}, {40, "dof=32", "magnitude=1", "A:H"},
      {34, "dof=32", "magnitude=1", "A"},
  });
  ExpectRefused<kloC_IonConcentrationFlux>({{83, "dof=32", "magnitude=1", "A:c"}, {0, "", "magnitude=1", "A:c"}});
  ExpectRefused<kloC_BodyHeatFlux>({
      {41, "", "", "A:H"}, {0, "", "tableCollectionName=T", "A:H"}, {0, "distType=USER_DEFINED", "", "A:H"},
  });
  ExpectRefused<kloC_ReferencePressure>({
      {77, "", "magnitude=-1", "A:W"}, {0, "", "magnitude=0", "A:W"},
  });
  ExpectRefused<kloC_SubstructureLoad>({{81, "", ""}, {0, "", "m_LoadCaseNames=one,two"}});
  ExpectRefused<kloC_LineLoad>({
      {0, "distType=USER_DEFINED", ""}, {69, "distribution=FIELD", "c1=1"}, {0, "distType=FIELD fieldName=f", "c1=1"},
  });
}

TEST(KindsOfLoadTest, PressuresKnowTheirElevations) {
  ExpectRefused<kloC_Pressure>({
      {19, "distType=HYDROSTATIC", "magnitude=1 hReference=2", "A:E"},
      {0, "distType=HYDROSTATIC", "magnitude=1 hReference=2", "A"},
      {20, "distType=HYDROSTATIC", "magnitude=0 hReference=2 hZero=2"},
      {0, "distType=VISCOUS", "magnitude=1", "A:E"},
      {69, "distType=FIELD", "magnitude=1"},
      {19, "", "magnitude=1 hReference=2 useHydrostatic=true", "A:E"},
      {20, "", "magnitude=1 useHydrostatic=true"},
  });
  ExpectRefused<kloC_PipePressure>({
      {42, "side=EXTERNAL", "magnitude=1"},
      {0, "side=EXTERNAL diameter=0.1", "magnitude=1"},
      {20, "distType=HYDROSTATIC", "magnitude=1"},
  });
}

TEST(KindsOfLoadTest, TractionsHaveADirection) {
  ExpectRefused<kloC_SurfaceTraction>({
      {64, "", "magnitude=1"},
      {64, "directionVector=0,0,0 csys=C userCsys=U", "magnitude=1"},
      {64, "directionVector=1", "magnitude=1"},
      {65, "directionVector=1,0,0 csys=C userCsys=U follower=false", "magnitude=1"},
      {66, "directionVector=1,0,0 csys=C follower=false", "magnitude=1"},
      {0, "directionVector=1,0,0 csys=C follower=false traction=GENERAL", "magnitude=1"},
      {68, "directionVector=1,0,0 fieldName=f", "magnitude=1"},
  });
  ExpectRefused<kloC_ShellEdgeLoad>({
      {0, "", "magnitude=1"}, {64, "traction=GENERAL", "magnitude=1"}, {64, "directionVector=0,0,0", "magnitude=1"},
      {66, "traction=MOMENT follower=false", "magnitude=1"},
  });
}

TEST(KindsOfLoadTest, BoltsStayFromTheFirstStepOn) {
  ExpectRefused<kloC_BoltLoad>({
      {37, "", "magnitude=1", "Z A"}, {37, "", "magnitude=1", "A:P"},
      {38, "", "magnitude=1 boltMethod=FIX_LENGTH"}, {41, "", "boltMethod=ADJUST_LENGTH"}, {0, "", "magnitude=1"},
  });
  auto bolt = Made<kloC_BoltLoad>("", "magnitude=1");
  bolt.Initialize(Steps("A B C"));
  kloC_BoltLoadState fixed;
  fixed.boltMethod = kloC_BoltLoadMethodEnm::FIX_LENGTH;
  EXPECT_EQ(Refusal([&] { bolt.Insert("B", fixed); }), passes);
  EXPECT_EQ(Refusal([&] { bolt.Deactivate("B"); }), Words(35));
  EXPECT_EQ(Refusal([&] { bolt.Move("A", "A"); }), passes);
  EXPECT_EQ(Refusal([&] { bolt.Move("A", "B"); }), Words(36));
  EXPECT_EQ(Refusal([&] { bolt.Move("B", "C"); }), passes);
  EXPECT_EQ(Refusal([&] { bolt.AssertValidPlace(true, true); }), Words(39));
  bolt.dtmReference = dtmC_DatumRef("axis");
  EXPECT_EQ(Refusal([&] { bolt.AssertValidPlace(true, true); }), Words(55));
  EXPECT_EQ(Refusal([&] { bolt.AssertValidPlace(true, false); }), passes);
  kprC_StepList withoutInitial = Steps("A");
  withoutInitial.RemoveIndex(0);
  EXPECT_EQ(Refusal([&] { bolt.Initialize(withoutInitial); }), Words(37));
}

TEST(KindsOfLoadTest, InertiaIsReliefOfFreeDirectionsOnly) {
  char const* const all = "u1=true u2=true u3=true ur1=true ur2=true ur3=true";
  ExpectRefused<kloC_InertiaRelief>({
      {0, "", all}, {50, "localCsys=C", all}, {0, "localCsys=C", "u1=true fixed=false"}, {51, "", "fixed=true"},
  });
  ExpectRefusedInSpace<kloC_InertiaRelief>(kloC_SpaceEnm::TWO_D_PLANAR,
                                           {{48, "", "u1=true ur1=true"},
                                            {50, "localCsys=C", "u1=true u2=true ur3=true"},
                                            {0, "localCsys=C", "u1=true u2=true"}});
  ExpectRefusedInSpace<kloC_InertiaRelief>(kloC_SpaceEnm::AXISYMMETRIC, {{49, "", "u1=true"}, {0, "", "u2=true"}});
  ExpectRefusedInSpace<kloC_Gravity>(kloC_SpaceEnm::AXISYMMETRIC,
                                     {{46, "", "c1=1 c2=-9.8"},
                                      {0, "", "c1=1 c2=-9.8", "A!"},
                                      {0, "suppressionState=SUPPRESSED_ATTRIBUTE", "c1=1"},
                                      {46, "useComplex=true complexC1Imag=3", "c2=1", "A:D"},
                                      {0, "", "c2=-9.8"}});
  ExpectRefusedInSpace<kloC_RotationalBodyForce>(
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
