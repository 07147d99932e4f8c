#pragma once

#include "kbcC_Types.h"
#include "mdl_PropagatingAttribute.h"

/// In which parts of a buckling analysis a displacement is prescribed.
enum class kbcC_BucklingCaseEnm {
  NOT_APPLICABLE = 0,
  STRESS_PERTURBATION = 1,
  BUCKLING_MODES = 2,
  PERTURBATION_AND_BUCKLING = 3,
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_BucklingCaseEnm>[] = {{"NOT_APPLICABLE", 0},
                                                                     {"STRESS_PERTURBATION", 1},
                                                                     {"BUCKLING_MODES", 2},
                                                                     {"PERTURBATION_AND_BUCKLING", 3},
                                                                     {nullptr, 0}};

/// What an inlet or outlet prescribes of the energy.
enum class kbcC_EnergyEquationTypeEnm { ENERGY_NONE = 0, TEMPERATURE = 1 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_EnergyEquationTypeEnm>[] = {
    {"ENERGY_NONE", 0}, {"TEMPERATURE", 1}, {nullptr, 0}};

/// The model of turbulence whose quantities are prescribed.
enum class kbcC_TurbulenceTypeEnm { TURB_NONE = 0, SPALART = 1, KEPS_RNG = 2, VMS = 3 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_TurbulenceTypeEnm>[] = {
    {"TURB_NONE", 0}, {"SPALART", 1}, {"KEPS_RNG", 2}, {"VMS", 3}, {nullptr, 0}};

// Enumerations that a condition names within its class (the name behind each). They stand here since its state needs
// them before that class is complete.

/// What a plane of symmetry or antisymmetry, or a support, holds. kbcC_TypeBC::TypeNameEnm.
enum class kbcC_TypeNameEnm {
  XSYMM = 0,
  YSYMM = 1,
  ZSYMM = 2,
  ENCASTRE = 3,
  PINNED = 4,
  XASYMM = 5,
  YASYMM = 6,
  ZASYMM = 7,
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_TypeNameEnm>[] = {
    {"XSYMM", 0},  {"YSYMM", 1},  {"ZSYMM", 2},  {"ENCASTRE", 3}, {"PINNED", 4},
    {"XASYMM", 5}, {"YASYMM", 6}, {"ZASYMM", 7}, {nullptr, 0}};

/// For which flow a boundary of an Eulerian mesh is told. kbcC_EulerianBC::DefinitionEnm.
enum class kbcC_EulerianDefinitionEnm { INFLOW = 0, OUTFLOW = 1, BOTH = 2 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_EulerianDefinitionEnm>[] = {
    {"INFLOW", 0}, {"OUTFLOW", 1}, {"BOTH", 2}, {nullptr, 0}};

/// How material comes in. kbcC_EulerianBC::InflowEnm.
enum class kbcC_EulerianInflowEnm { FREE = 0, NONE = 1, VOID = 2 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_EulerianInflowEnm>[] = {
    {"FREE", 0}, {"NONE", 1}, {"VOID", 2}, {nullptr, 0}};

/// How material goes out. kbcC_EulerianBC::OutflowEnm.
enum class kbcC_EulerianOutflowEnm { ZERO_PRESSURE = 0, FREE = 1, NON_REFLECTING = 2, EQUILIBRIUM = 3, NONE = 4 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_EulerianOutflowEnm>[] = {
    {"ZERO_PRESSURE", 0}, {"FREE", 1}, {"NON_REFLECTING", 2}, {"EQUILIBRIUM", 3}, {"NONE", 4}, {nullptr, 0}};

/// Whether a part of a moving Eulerian mesh stays. kbcC_EulerianMotionBC::PositionEnm.
enum class kbcC_EulerianPositionEnm { FREE = 0, FIXED = 1 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_EulerianPositionEnm>[] = {
    {"FREE", 0}, {"FIXED", 1}, {nullptr, 0}};

/// What an inlet or outlet prescribes of the momentum. kbcC_FluidInletOutletBC::momentumTypeEnm.
enum class kbcC_FluidMomentumTypeEnm { NONE = 0, PRESSURE = 1, VELOCITY = 2 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_FluidMomentumTypeEnm>[] = {
    {"NONE", 0}, {"PRESSURE", 1}, {"VELOCITY", 2}, {nullptr, 0}};

/// How the fluid moves at a wall. kbcC_FluidWallConditionBC::wallConditionTypeEnm.
enum class kbcC_FluidWallConditionTypeEnm { INFILTRATION = 0, NO_SLIP = 1, SHEAR = 2 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_FluidWallConditionTypeEnm>[] = {
    {"INFILTRATION", 0}, {"NO_SLIP", 1}, {"SHEAR", 2}, {nullptr, 0}};

/// What a wall prescribes of the heat. kbcC_FluidWallConditionBC::thermalEnergyTypeEnm.
enum class kbcC_FluidThermalEnergyTypeEnm { HEAT_FLUX = 0, NONE = 1, TEMPERATURE = 2 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_FluidThermalEnergyTypeEnm>[] = {
    {"HEAT_FLUX", 0}, {"NONE", 1}, {"TEMPERATURE", 2}, {nullptr, 0}};

MDL_PROP_ATTR(kbcC, omi_complex, "kbcC_PropComplex", 203, 5, 2);
MDL_PROP_ATTR(kbcC, kbcC_BucklingCaseEnm, "kbcC_PropBucklingCase", 203, 4, 2);
MDL_PROP_ATTR(kbcC, kbcC_EnergyEquationTypeEnm, "kbcC_PropBCEnergyEquationType", 1528, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_TurbulenceTypeEnm, "kbcC_PropBCTurbulenceType", 1528, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_TypeNameEnm, "kbcC_PropTypeBCName", 203, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_EulerianDefinitionEnm, "kbcC_PropEulrnDefinition", 1376, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_EulerianInflowEnm, "kbcC_PropEulrnInflow", 1376, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_EulerianOutflowEnm, "kbcC_PropEulrnOutflow", 1376, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_EulerianPositionEnm, "kbcC_PropEulrnPosition", 1382, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_FluidMomentumTypeEnm, "kbcC_PropFluidIOMomentumType", 1408, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_FluidWallConditionTypeEnm, "kbcC_PropFluidWallConditionType", 1417, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_FluidThermalEnergyTypeEnm, "kbcC_PropFluidWCThermalEnergyType", 1417, 0, 1);
