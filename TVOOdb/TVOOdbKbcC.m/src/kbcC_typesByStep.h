#pragma once

#include <array>
#include <iterator>

#include "kbcC_Types.h"
#include "kprC_TypesByStep.h"

/// The identifiers of the types that are on offer, under their names less the prefix.
namespace kbcC_MenuTypes {
inline constexpr unsigned int DisplacementBC = kbcC_TypeId("kbcC_DisplacementBC");
inline constexpr unsigned int TypeBC = kbcC_TypeId("kbcC_TypeBC");
inline constexpr unsigned int VelocityBC = kbcC_TypeId("kbcC_VelocityBC");
inline constexpr unsigned int AccelerationBC = kbcC_TypeId("kbcC_AccelerationBC");
inline constexpr unsigned int TemperatureBC = kbcC_TypeId("kbcC_TemperatureBC");
inline constexpr unsigned int PorePressureBC = kbcC_TypeId("kbcC_PorePressureBC");
inline constexpr unsigned int AcousticPressureBC = kbcC_TypeId("kbcC_AcousticPressureBC");
inline constexpr unsigned int FluidCavityPressureBC = kbcC_TypeId("kbcC_FluidCavityPressureBC");
inline constexpr unsigned int ElectricPotentialBC = kbcC_TypeId("kbcC_ElectricPotentialBC");
inline constexpr unsigned int ElectricPotentialElectrolyteBC = kbcC_TypeId("kbcC_ElectricPotentialElectrolyteBC");
inline constexpr unsigned int IonConcentrationBC = kbcC_TypeId("kbcC_IonConcentrationBC");
inline constexpr unsigned int ConcentrationBC = kbcC_TypeId("kbcC_ConcentrationBC");
inline constexpr unsigned int SubmodelBC = kbcC_TypeId("kbcC_SubmodelBC");
inline constexpr unsigned int ConnDisplacementBC = kbcC_TypeId("kbcC_ConnDisplacementBC");
inline constexpr unsigned int ConnVelocityBC = kbcC_TypeId("kbcC_ConnVelocityBC");
inline constexpr unsigned int ConnAccelerationBC = kbcC_TypeId("kbcC_ConnAccelerationBC");
inline constexpr unsigned int MassFlowBC = kbcC_TypeId("kbcC_MassFlowBC");
inline constexpr unsigned int EulerianBC = kbcC_TypeId("kbcC_EulerianBC");
inline constexpr unsigned int EulerianMotionBC = kbcC_TypeId("kbcC_EulerianMotionBC");
inline constexpr unsigned int FluidInletOutletBC = kbcC_TypeId("kbcC_FluidInletOutletBC");
inline constexpr unsigned int FluidWallConditionBC = kbcC_TypeId("kbcC_FluidWallConditionBC");
inline constexpr unsigned int RetainedNodalDofsBC = kbcC_TypeId("kbcC_RetainedNodalDofsBC");
inline constexpr unsigned int MagneticVectorPotentialBC = kbcC_TypeId("kbcC_MagneticVectorPotentialBC");
inline constexpr unsigned int SecondaryBaseBC = kbcC_TypeId("kbcC_SecondaryBaseBC");
inline constexpr unsigned int AccelerationBaseMotionBC = kbcC_TypeId("kbcC_AccelerationBaseMotionBC");
inline constexpr unsigned int DisplacementBaseMotionBC = kbcC_TypeId("kbcC_DisplacementBaseMotionBC");
inline constexpr unsigned int VelocityBaseMotionBC = kbcC_TypeId("kbcC_VelocityBaseMotionBC");
}  // namespace kbcC_MenuTypes

/// The labels of the types that are on offer, in the order of the label map.
inline constexpr auto kbcC_TypeLabels = [] {
  using namespace kbcC_MenuTypes;
  return std::to_array<kprC_TypeLabelRow>({
      {DisplacementBC, "Displacement/Rotation"},
      {TypeBC, "Symmetry/Antisymmetry/Encastre"},
      {VelocityBC, "Velocity/Angular velocity"},
      {AccelerationBC, "Acceleration/Angular acceleration"},
      {TemperatureBC, "Temperature"},
      {PorePressureBC, "Pore pressure"},
      {AcousticPressureBC, "Acoustic pressure"},
      {FluidCavityPressureBC, "Fluid cavity pressure"},
      {ElectricPotentialBC, "Electric potential"},
      {ElectricPotentialElectrolyteBC, "Electric potential electrolyte"},
      {IonConcentrationBC, "Ion concentration"},
      {ConcentrationBC, "Normalized concentration"},
      {SubmodelBC, "Submodel"},
      {ConnDisplacementBC, "Connector displacement"},
      {ConnVelocityBC, "Connector velocity"},
      {ConnAccelerationBC, "Connector acceleration"},
      {MassFlowBC, "Connector material flow"},
      {EulerianBC, "Eulerian boundary"},
      {EulerianMotionBC, "Eulerian mesh motion"},
      {FluidInletOutletBC, "Fluid inlet/outlet"},
      {FluidWallConditionBC, "Fluid wall condition"},
      {RetainedNodalDofsBC, "Retained nodal dofs"},
      {MagneticVectorPotentialBC, "Magnetic vector potential"},
      {SecondaryBaseBC, "Secondary base"},
      {AccelerationBaseMotionBC, "Acceleration base motion"},
      {DisplacementBaseMotionBC, "Displacement base motion"},
      {VelocityBaseMotionBC, "Velocity base motion"},
  });
}();
static_assert(kprC_LabelsDiffer(kbcC_TypeLabels));

// Menus and products that stand in several rows. Product 2 is a CFD analysis; 4 lies beyond the enumeration of products,
// yet callers pass it, and the initial step offers it nothing either.
namespace kbcC_MenuTypes {
inline constexpr kprC_TypeMenu longMechanicalMenu{
    TypeBC, DisplacementBC, VelocityBC, AccelerationBC, ConnDisplacementBC, ConnVelocityBC, ConnAccelerationBC};
inline constexpr kprC_TypeMenu electricalTrio{
    ElectricPotentialBC, ElectricPotentialElectrolyteBC, IonConcentrationBC};
inline constexpr kprC_ProductSet notCfd{2};
inline constexpr kprC_ProductSet neitherCfdNor4{2, 4};
}  // namespace kbcC_MenuTypes

/// Mechanical types by step.
inline constexpr auto kbcC_MechanicalMenu = [] {
  using namespace kprC_Procedure;
  using namespace kbcC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
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
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kbcC_MechanicalMenu) && kprC_AllLabelled(kbcC_MechanicalMenu, kbcC_TypeLabels));

/// Fluid types by step.
inline constexpr auto kbcC_FluidMenu = [] {
  using namespace kprC_Procedure;
  using namespace kbcC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{Flow}, {FluidInletOutletBC, FluidWallConditionBC}},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kbcC_FluidMenu) && kprC_AllLabelled(kbcC_FluidMenu, kbcC_TypeLabels));

/// Electrical and electrochemical types by step; a CFD analysis has none.
inline constexpr auto kbcC_ElectricalMenu = [] {
  using namespace kprC_Procedure;
  using namespace kbcC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
      {{CoupledThermalElectrochemical, CoupledThermalElectrochemStruct,
        CoupledThermalElectrochemStructPorepressure},
       electricalTrio, notCfd},
      {{}, electricalTrio, neitherCfdNor4},
      {{CoupledThermalElectric, ImplicitDynamics, Static, StaticLinearPerturbation, SteadyStateDirect,
        ElecThermalStructural},
       electricalTrio, notCfd},
      {{EmagTimeHarmonic}, {MagneticVectorPotentialBC}, notCfd},
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kbcC_ElectricalMenu) && kprC_AllLabelled(kbcC_ElectricalMenu, kbcC_TypeLabels));

/// All other types by step.
inline constexpr auto kbcC_OtherMenu = [] {
  using namespace kprC_Procedure;
  using namespace kbcC_MenuTypes;
  return std::to_array<kprC_TypesByStepRow>({
      // clang-format off
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
      // clang-format on
  });
}();
static_assert(kprC_RowsAreDisjoint(kbcC_OtherMenu) && kprC_AllLabelled(kbcC_OtherMenu, kbcC_TypeLabels));

/// The four menus turned over, for the test of a single type.
inline constexpr kprC_OfferIndex<std::size(kbcC_TypeRows)> kbcC_Offers{
    kbcC_ModuleId, {kbcC_MechanicalMenu, kbcC_FluidMenu, kbcC_ElectricalMenu, kbcC_OtherMenu}};
