#pragma once

#include <iterator>

#include "kbcC_Types.h"
#include "kprC_TypesByStep.h"

/// The types of each menu by step.
namespace kbcC_Menus {
using namespace kprC_Procedure;

// The types that have a label, under their names less the prefix.
#define LABEL(type, text) inline constexpr unsigned int type = kbcC_TypeId("kbcC_" #type);
#include "kbcC_labels.inc"
#undef LABEL

// Menus and products that stand in several rows. Product 2 is a CFD analysis; 4 lies beyond the enumeration of
// products, yet callers pass it, and the initial step offers it nothing either.
inline constexpr kprC_TypeMenu longMechanicalMenu{
    TypeBC, DisplacementBC, VelocityBC, AccelerationBC, ConnDisplacementBC, ConnVelocityBC, ConnAccelerationBC};
inline constexpr kprC_TypeMenu electricalTrio{
    ElectricPotentialBC, ElectricPotentialElectrolyteBC, IonConcentrationBC};
inline constexpr kprC_ProductSet notCfd{2};
inline constexpr kprC_ProductSet neitherCfdNor4{2, 4};

// clang-format off
inline constexpr kprC_TypesByStepRow mechanical[] = {
    {{}, longMechanicalMenu, neitherCfdNor4},
    {{ExplicitDynamics, ImplicitDynamics, TempDisplacementDynamics}, longMechanicalMenu, notCfd},
    {{Buckle, CoupledThermalElectric, ResponseSpectrum, StaticLinearPerturbation},
     {TypeBC, DisplacementBC, ConnDisplacementBC}},
    {{CoupledTempDisplacement, Geostatic, Soils, Static, StaticRiks, Visco, DirectCyclic},
     {TypeBC, DisplacementBC, VelocityBC, ConnDisplacementBC, ConnVelocityBC}},
    {{Frequency}, {TypeBC, DisplacementBC, ConnDisplacementBC, SecondaryBaseBC}},
    {{ModalDynamics, RandomResponse, SteadyStateModal, SteadyStateSubspace},
     {AccelerationBaseMotionBC, DisplacementBaseMotionBC, VelocityBaseMotionBC}},
    {{SteadyStateDirect}, {TypeBC, DisplacementBC, ConnDisplacementBC}},
    {{SubstructureGenerate}, {TypeBC, DisplacementBC, RetainedNodalDofsBC}},
    {{Flow}, {DisplacementBC}},
    {{ElecThermalStructural}, {TypeBC, DisplacementBC, VelocityBC}},
    {{CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure}, {DisplacementBC}},
};

inline constexpr kprC_TypesByStepRow fluid[] = {
    {{Flow}, {FluidInletOutletBC, FluidWallConditionBC}},
};

// A CFD analysis has none.
inline constexpr kprC_TypesByStepRow electrical[] = {
    {{CoupledThermalElectrochemical, CoupledThermalElectrochemStruct,
      CoupledThermalElectrochemStructPorepressure},
     electricalTrio, notCfd},
    {{}, electricalTrio, neitherCfdNor4},
    {{CoupledThermalElectric, ImplicitDynamics, Static, StaticLinearPerturbation, SteadyStateDirect,
      ElecThermalStructural},
     electricalTrio, notCfd},
    {{EmagTimeHarmonic}, {MagneticVectorPotentialBC}, notCfd},
};

inline constexpr kprC_TypesByStepRow other[] = {
    {{},
     {TemperatureBC, PorePressureBC, FluidCavityPressureBC, ConcentrationBC, AcousticPressureBC,
      MassFlowBC}, neitherCfdNor4},
    {{Buckle, SteadyStateModal, SubspaceDynamics}, {FluidCavityPressureBC, MassFlowBC, SubmodelBC}},
    {{CoupledTempDisplacement}, {TemperatureBC, FluidCavityPressureBC, MassFlowBC, SubmodelBC}},
    {{CoupledThermalElectric}, {TemperatureBC, MassFlowBC}},
    {{ExplicitDynamics},
     {FluidCavityPressureBC, AcousticPressureBC, MassFlowBC, EulerianBC, EulerianMotionBC, SubmodelBC}},
    {{Frequency}, {FluidCavityPressureBC, AcousticPressureBC, MassFlowBC}},
    {{Geostatic, Soils}, {TemperatureBC, PorePressureBC, FluidCavityPressureBC, MassFlowBC, SubmodelBC}},
    {{HeatTransfer}, {TemperatureBC, MassFlowBC, SubmodelBC}},
    {{ImplicitDynamics}, {PorePressureBC, FluidCavityPressureBC, AcousticPressureBC, MassFlowBC, SubmodelBC}},
    {{MassDiffusion}, {ConcentrationBC, MassFlowBC, SubmodelBC}},
    {{ModalDynamics}, {MassFlowBC, SubmodelBC}},
    {{RandomResponse, ResponseSpectrum, ComplexFrequency, SteadyStateSubspace}, {FluidCavityPressureBC}},
    {{Static}, {PorePressureBC, FluidCavityPressureBC, MassFlowBC, SubmodelBC}},
    {{StaticRiks, StaticLinearPerturbation}, {FluidCavityPressureBC, MassFlowBC, SubmodelBC}},
    {{SteadyStateDirect}, {FluidCavityPressureBC, AcousticPressureBC, MassFlowBC, SubmodelBC}},
    {{Visco}, {PorePressureBC, FluidCavityPressureBC, MassFlowBC, SubmodelBC}},
    {{TempDisplacementDynamics},
     {TemperatureBC, AcousticPressureBC, FluidCavityPressureBC, MassFlowBC, SubmodelBC, EulerianBC}},
    {{SubstructureGenerate}, {FluidCavityPressureBC, AcousticPressureBC}},
    {{DirectCyclic}, {SubmodelBC}},
    {{ElecThermalStructural}, {TemperatureBC, FluidCavityPressureBC, MassFlowBC, SubmodelBC}},
    {{CoupledThermalElectrochemical, CoupledThermalElectrochemStruct}, {TemperatureBC}},
    {{CoupledThermalElectrochemStructPorepressure}, {TemperatureBC, PorePressureBC}},
};
// clang-format on
}  // namespace kbcC_Menus

/// The labels, in the order of the label map.
inline constexpr kprC_TypeLabelRow kbcC_TypeLabels[] = {
#define LABEL(type, text) {kbcC_Menus::type, text},
#include "kbcC_labels.inc"
#undef LABEL
};
static_assert(kprC_LabelsDiffer(kbcC_TypeLabels));

/// The menus in the order in which users see them.
inline constexpr kprC_TypesMenu kbcC_MenuTable[] = {
    {"mechanical", kbcC_Menus::mechanical},
    {"fluid", kbcC_Menus::fluid},
    {"electrical", kbcC_Menus::electrical},
    {"other", kbcC_Menus::other},
};
static_assert(kprC_MenusAreSound(kbcC_MenuTable, kbcC_TypeLabels));

/// The menus turned over, for the test of a single type.
inline constexpr kprC_OfferIndex<std::size(kbcC_TypeRows)> kbcC_Offers{kbcC_ModuleId, kbcC_MenuTable};
