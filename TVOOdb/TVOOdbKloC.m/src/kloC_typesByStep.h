#pragma once

#include <iterator>

#include "kloC_Types.h"
#include "kprC_TypesByStep.h"

/// The types of each menu by step.
namespace kloC_Menus {
using namespace kprC_Procedure;

// The types that have a label, under their names less the prefix.
#define LABEL(type, text) inline constexpr unsigned int type = kloC_TypeId("kloC_" #type);
#include "kloC_labels.inc"
#undef LABEL

/// A type and those procedures of its row that leave it out.
using Except = kprC_OfferedType;

// clang-format off
inline constexpr kprC_TypesByStepRow mechanical[] = {
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
};

inline constexpr kprC_TypesByStepRow thermal[] = {
    {{CoupledTempDisplacement, CoupledThermalElectric, HeatTransfer, TempDisplacementDynamics,
      ElecThermalStructural},
     {SurfaceHeatFlux, BodyHeatFlux, ConcentratedHeatFlux}},
    {{Flow},
     {BodyHeatFlux}},
};

inline constexpr kprC_TypesByStepRow fluid[] = {
    {{Flow},
     {ReferencePressure, PorDragBodyForce}},
    {{Soils, Geostatic},
     {ConcentratedPoreFluid, SurfacePoreFluid}},
};

inline constexpr kprC_TypesByStepRow electrical[] = {
    {{CoupledThermalElectric, ElecThermalStructural},
     {ConcentratedCurrent, SurfaceCurrent, BodyCurrent, FluidSurfaceCurrent}},
    {{ImplicitDynamics, Static, StaticLinearPerturbation, SteadyStateDirect},
     {ConcentratedCharge, SurfaceCharge, BodyCharge}},
    {{EmagTimeHarmonic},
     {SurfaceCurrentDensity, BodyCurrentDensity}},
};

inline constexpr kprC_TypesByStepRow electrochemical[] = {
    {{CoupledThermalElectrochemical, CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure},
     {IonConcentrationFlux, FluidSurfaceCurrent, DistIonConcBodyFlux}},
};

inline constexpr kprC_TypesByStepRow massDiffusion[] = {
    {{MassDiffusion},
     {ConcentratedConcentrationFlux, SurfaceConcentrationFlux, BodyConcentrationFlux}},
};

inline constexpr kprC_TypesByStepRow acoustic[] = {
    {{Buckle, ModalDynamics, StaticLinearPerturbation, SteadyStateDirect, SteadyStateModal, SubspaceDynamics,
      SteadyStateSubspace, ExplicitDynamics, ImplicitDynamics, TempDisplacementDynamics},
     {InwardVolAccel}},
};

inline constexpr kprC_TypesByStepRow other[] = {
    {{Static, StaticLinearPerturbation},
     {SubmodelStressBased}},
};
// clang-format on
}  // namespace kloC_Menus

/// The labels, in the order of the label map. A label may stand for a type that no menu offers.
inline constexpr kprC_TypeLabelRow kloC_TypeLabels[] = {
#define LABEL(type, text) {kloC_Menus::type, text},
#include "kloC_labels.inc"
#undef LABEL
};
static_assert(kprC_LabelsDiffer(kloC_TypeLabels));

/// The menus in the order in which users see them.
inline constexpr kprC_TypesMenu kloC_MenuTable[] = {
    {"mechanical", kloC_Menus::mechanical},
    {"thermal", kloC_Menus::thermal},
    {"fluid", kloC_Menus::fluid},
    {"electrical", kloC_Menus::electrical},
    {"electrochemical", kloC_Menus::electrochemical},
    {"mass diffusion", kloC_Menus::massDiffusion},
    {"acoustic", kloC_Menus::acoustic},
    {"other", kloC_Menus::other},
};
static_assert(kprC_MenusAreSound(kloC_MenuTable, kloC_TypeLabels));

/// The menus turned over, for the test of a single type.
inline constexpr kprC_OfferIndex<std::size(kloC_TypeRows)> kloC_Offers{kloC_ModuleId, kloC_MenuTable};
