#pragma once

#include <array>
#include <iterator>

#include "kloC_Types.h"
#include "kprC_TypesByStep.h"

/// The identifiers of the types that have a label, under their names less the prefix.
namespace kloC_MenuTypes {
inline constexpr unsigned int ConcentratedForce = kloC_TypeId("kloC_ConcentratedForce");
inline constexpr unsigned int Pressure = kloC_TypeId("kloC_Pressure");
inline constexpr unsigned int SurfaceHeatFlux = kloC_TypeId("kloC_SurfaceHeatFlux");
inline constexpr unsigned int PressurePenetration = kloC_TypeId("kloC_PressurePenetration");
inline constexpr unsigned int RotationalBodyForce = kloC_TypeId("kloC_RotationalBodyForce");
inline constexpr unsigned int CoriolisForce = kloC_TypeId("kloC_CoriolisForce");
inline constexpr unsigned int ConnectorForce = kloC_TypeId("kloC_ConnectorForce");
inline constexpr unsigned int ConnectorMoment = kloC_TypeId("kloC_ConnectorMoment");
inline constexpr unsigned int Moment = kloC_TypeId("kloC_Moment");
inline constexpr unsigned int LineLoad = kloC_TypeId("kloC_LineLoad");
inline constexpr unsigned int PipePressure = kloC_TypeId("kloC_PipePressure");
inline constexpr unsigned int BodyForce = kloC_TypeId("kloC_BodyForce");
inline constexpr unsigned int Gravity = kloC_TypeId("kloC_Gravity");
inline constexpr unsigned int PEGLoad = kloC_TypeId("kloC_PEGLoad");
inline constexpr unsigned int BoltLoad = kloC_TypeId("kloC_BoltLoad");
inline constexpr unsigned int ConcentratedHeatFlux = kloC_TypeId("kloC_ConcentratedHeatFlux");
inline constexpr unsigned int BodyHeatFlux = kloC_TypeId("kloC_BodyHeatFlux");
inline constexpr unsigned int ConcentratedPoreFluid = kloC_TypeId("kloC_ConcentratedPoreFluid");
inline constexpr unsigned int SurfacePoreFluid = kloC_TypeId("kloC_SurfacePoreFluid");
inline constexpr unsigned int HydroFluidFlow = kloC_TypeId("kloC_HydroFluidFlow");
inline constexpr unsigned int ConcentratedCharge = kloC_TypeId("kloC_ConcentratedCharge");
inline constexpr unsigned int ConcentratedCurrent = kloC_TypeId("kloC_ConcentratedCurrent");
inline constexpr unsigned int SurfaceCharge = kloC_TypeId("kloC_SurfaceCharge");
inline constexpr unsigned int SurfaceCurrent = kloC_TypeId("kloC_SurfaceCurrent");
inline constexpr unsigned int BodyCharge = kloC_TypeId("kloC_BodyCharge");
inline constexpr unsigned int BodyCurrent = kloC_TypeId("kloC_BodyCurrent");
inline constexpr unsigned int ConcentratedConcentrationFlux = kloC_TypeId("kloC_ConcentratedConcentrationFlux");
inline constexpr unsigned int SurfaceConcentrationFlux = kloC_TypeId("kloC_SurfaceConcentrationFlux");
inline constexpr unsigned int BodyConcentrationFlux = kloC_TypeId("kloC_BodyConcentrationFlux");
inline constexpr unsigned int InwardVolAccel = kloC_TypeId("kloC_InwardVolAccel");
inline constexpr unsigned int InertiaRelief = kloC_TypeId("kloC_InertiaRelief");
inline constexpr unsigned int ShellEdgeLoad = kloC_TypeId("kloC_ShellEdgeLoad");
inline constexpr unsigned int SurfaceTraction = kloC_TypeId("kloC_SurfaceTraction");
inline constexpr unsigned int SubmodelStressBased = kloC_TypeId("kloC_SubmodelStressBased");
inline constexpr unsigned int ReferencePressure = kloC_TypeId("kloC_ReferencePressure");
inline constexpr unsigned int SubstructureLoad = kloC_TypeId("kloC_SubstructureLoad");
inline constexpr unsigned int SurfaceCurrentDensity = kloC_TypeId("kloC_SurfaceCurrentDensity");
inline constexpr unsigned int BodyCurrentDensity = kloC_TypeId("kloC_BodyCurrentDensity");
inline constexpr unsigned int PorDragBodyForce = kloC_TypeId("kloC_PorDragBodyForce");
inline constexpr unsigned int FluidPressurePenetration = kloC_TypeId("kloC_FluidPressurePenetration");
inline constexpr unsigned int IonConcentrationFlux = kloC_TypeId("kloC_IonConcentrationFlux");
inline constexpr unsigned int FluidSurfaceCurrent = kloC_TypeId("kloC_FluidSurfaceCurrent");
inline constexpr unsigned int DistIonConcBodyFlux = kloC_TypeId("kloC_DistIonConcBodyFlux");

/// A type and those procedures of its row that leave it out.
using Except = kprC_OfferedType;
}  // namespace kloC_MenuTypes

/// The labels of the types, in the order of the label map. A label may stand for a type that no menu offers.
inline constexpr auto kloC_TypeLabels = [] {
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypeLabelRow>({
      {ConcentratedForce, "Concentrated force"},
      {Pressure, "Pressure"},
      {SurfaceHeatFlux, "Surface heat flux"},
      {PressurePenetration, "Pressure penetration (NYI)"},
      {RotationalBodyForce, "Rotational body force"},
      {CoriolisForce, "Coriolis force"},
      {ConnectorForce, "Connector force"},
      {ConnectorMoment, "Connector moment"},
      {Moment, "Moment"},
      {LineLoad, "Line load"},
      {PipePressure, "Pipe pressure"},
      {BodyForce, "Body force"},
      {Gravity, "Gravity"},
      {PEGLoad, "Generalized plane strain"},
      {BoltLoad, "Bolt load"},
      {ConcentratedHeatFlux, "Concentrated heat flux"},
      {BodyHeatFlux, "Body heat flux"},
      {ConcentratedPoreFluid, "Concentrated pore fluid"},
      {SurfacePoreFluid, "Surface pore fluid"},
      {HydroFluidFlow, "Hydrostatic fluid flux"},
      {ConcentratedCharge, "Concentrated charge"},
      {ConcentratedCurrent, "Concentrated current"},
      {SurfaceCharge, "Surface charge"},
      {SurfaceCurrent, "Surface current"},
      {BodyCharge, "Body charge"},
      {BodyCurrent, "Body current"},
      {ConcentratedConcentrationFlux, "Concentrated concentration flux"},
      {SurfaceConcentrationFlux, "Surface concentration flux"},
      {BodyConcentrationFlux, "Body concentration flux"},
      {InwardVolAccel, "Inward volume acceleration"},
      {InertiaRelief, "Inertia relief"},
      {ShellEdgeLoad, "Shell edge load"},
      {SurfaceTraction, "Surface traction"},
      {SubmodelStressBased, "Submodel"},
      {ReferencePressure, "Fluid reference pressure"},
      {SubstructureLoad, "Substructure load"},
      {SurfaceCurrentDensity, "Surface current density"},
      {BodyCurrentDensity, "Body current density"},
      {PorDragBodyForce, "Porous drag body force"},
      {FluidPressurePenetration, "Fluid pressure penetration"},
      {IonConcentrationFlux, "Ion concentration flux"},
      {FluidSurfaceCurrent, "Fluid surface current"},
      {DistIonConcBodyFlux, "Distributed Ion Concentration body flux"},
  });
}();
static_assert(kprC_LabelsDiffer(kloC_TypeLabels));

/// Mechanical types by step.
inline constexpr auto kloC_MechanicalMenu = [] {
  using namespace kprC_Procedure;
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{CoupledTempDisplacement, Geostatic, ImplicitDynamics, Soils, Static, StaticRiks, Visco, DirectCyclic},
       {ConcentratedForce, Moment, Pressure, ShellEdgeLoad, SurfaceTraction, PipePressure, BodyForce, LineLoad,
        Gravity, BoltLoad, Except{PEGLoad, {Soils, CoupledTempDisplacement, Geostatic}}, RotationalBodyForce,
        CoriolisForce, ConnectorForce, ConnectorMoment, SubstructureLoad,
        Except{InertiaRelief, ~kprC_ProcedureSet{Static, StaticRiks, ImplicitDynamics}},
        Except{FluidPressurePenetration, {Geostatic, StaticRiks, DirectCyclic}}}},
      {{ExplicitDynamics, TempDisplacementDynamics},
       {ConcentratedForce, Moment, Pressure, ShellEdgeLoad, SurfaceTraction, BodyForce, LineLoad, Gravity,
        ConnectorForce, ConnectorMoment, FluidPressurePenetration}},
      {{Buckle, ModalDynamics, StaticLinearPerturbation, SteadyStateDirect, SteadyStateModal, SubspaceDynamics,
        SubstructureGenerate, SteadyStateSubspace},
       {ConcentratedForce, Moment, Pressure, ShellEdgeLoad, SurfaceTraction, BodyForce, LineLoad, Gravity,
        PipePressure, PEGLoad, RotationalBodyForce, CoriolisForce, Except{ConnectorForce, {SubstructureGenerate}},
        Except{ConnectorMoment, {SubstructureGenerate}},
        Except{InertiaRelief, ~kprC_ProcedureSet{StaticLinearPerturbation, Buckle}},
        Except{SubstructureLoad, {Buckle, SubspaceDynamics, SubstructureGenerate}},
        Except{BoltLoad, ~kprC_ProcedureSet{StaticLinearPerturbation}},
        Except{FluidPressurePenetration, {Buckle, SteadyStateSubspace, SubspaceDynamics, SubstructureGenerate}}}},
      {{ElecThermalStructural},
       {ConcentratedForce, Moment, Pressure, ShellEdgeLoad, SurfaceTraction, PipePressure, BodyForce, LineLoad,
        Gravity, BoltLoad, RotationalBodyForce, CoriolisForce, SubstructureLoad, FluidPressurePenetration}},
      {{Flow},
       {BodyForce, Gravity}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kloC_MechanicalMenu) && kprC_AllLabelled(kloC_MechanicalMenu, kloC_TypeLabels));

/// Thermal types by step.
inline constexpr auto kloC_ThermalMenu = [] {
  using namespace kprC_Procedure;
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{CoupledTempDisplacement, CoupledThermalElectric, HeatTransfer, TempDisplacementDynamics,
        ElecThermalStructural},
       {SurfaceHeatFlux, BodyHeatFlux, ConcentratedHeatFlux}},
      {{Flow},
       {BodyHeatFlux}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kloC_ThermalMenu) && kprC_AllLabelled(kloC_ThermalMenu, kloC_TypeLabels));

/// Fluid types by step.
inline constexpr auto kloC_FluidMenu = [] {
  using namespace kprC_Procedure;
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{Flow},
       {ReferencePressure, PorDragBodyForce}},
      {{Soils, Geostatic},
       {ConcentratedPoreFluid, SurfacePoreFluid}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kloC_FluidMenu) && kprC_AllLabelled(kloC_FluidMenu, kloC_TypeLabels));

/// Electrical types by step.
inline constexpr auto kloC_ElectricalMenu = [] {
  using namespace kprC_Procedure;
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{CoupledThermalElectric, ElecThermalStructural},
       {ConcentratedCurrent, SurfaceCurrent, BodyCurrent, FluidSurfaceCurrent}},
      {{ImplicitDynamics, Static, StaticLinearPerturbation, SteadyStateDirect},
       {ConcentratedCharge, SurfaceCharge, BodyCharge}},
      {{EmagTimeHarmonic},
       {SurfaceCurrentDensity, BodyCurrentDensity}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kloC_ElectricalMenu) && kprC_AllLabelled(kloC_ElectricalMenu, kloC_TypeLabels));

/// Electrochemical types by step.
inline constexpr auto kloC_ElectrochemicalMenu = [] {
  using namespace kprC_Procedure;
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{CoupledThermalElectrochemical, CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure},
       {IonConcentrationFlux, FluidSurfaceCurrent, DistIonConcBodyFlux}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kloC_ElectrochemicalMenu) &&
              kprC_AllLabelled(kloC_ElectrochemicalMenu, kloC_TypeLabels));

/// Mass diffusion types by step.
inline constexpr auto kloC_MassDiffusionMenu = [] {
  using namespace kprC_Procedure;
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{MassDiffusion},
       {ConcentratedConcentrationFlux, SurfaceConcentrationFlux, BodyConcentrationFlux}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kloC_MassDiffusionMenu) &&
              kprC_AllLabelled(kloC_MassDiffusionMenu, kloC_TypeLabels));

/// Acoustic types by step.
inline constexpr auto kloC_AcousticMenu = [] {
  using namespace kprC_Procedure;
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{Buckle, ModalDynamics, StaticLinearPerturbation, SteadyStateDirect, SteadyStateModal, SubspaceDynamics,
        SteadyStateSubspace, ExplicitDynamics, ImplicitDynamics, TempDisplacementDynamics},
       {InwardVolAccel}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kloC_AcousticMenu) && kprC_AllLabelled(kloC_AcousticMenu, kloC_TypeLabels));

/// All other types by step.
inline constexpr auto kloC_OtherMenu = [] {
  using namespace kprC_Procedure;
  using namespace kloC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{Static, StaticLinearPerturbation},
       {SubmodelStressBased}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kloC_OtherMenu) && kprC_AllLabelled(kloC_OtherMenu, kloC_TypeLabels));

/// The eight menus turned over, for the test of a single type.
inline constexpr kprC_OfferIndex<std::size(kloC_TypeRows)> kloC_Offers{
    kloC_ModuleId,
    {kloC_MechanicalMenu, kloC_ThermalMenu, kloC_FluidMenu, kloC_ElectricalMenu, kloC_ElectrochemicalMenu,
     kloC_MassDiffusionMenu, kloC_AcousticMenu, kloC_OtherMenu}};
