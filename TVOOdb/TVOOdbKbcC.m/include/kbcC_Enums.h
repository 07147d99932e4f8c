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

enum class kbcC_EnergyEquationTypeEnm { ENERGY_NONE = 0, TEMPERATURE = 1 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_EnergyEquationTypeEnm>[] = {
    {"ENERGY_NONE", 0}, {"TEMPERATURE", 1}, {nullptr, 0}};

enum class kbcC_TurbulenceTypeEnm { TURB_NONE = 0, SPALART = 1, KEPS_RNG = 2, VMS = 3 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kbcC_TurbulenceTypeEnm>[] = {
    {"TURB_NONE", 0}, {"SPALART", 1}, {"KEPS_RNG", 2}, {"VMS", 3}, {nullptr, 0}};

MDL_PROP_ATTR(kbcC, omi_complex, "kbcC_PropComplex", 203, 5, 2);
MDL_PROP_ATTR(kbcC, kbcC_BucklingCaseEnm, "kbcC_PropBucklingCase", 203, 4, 2);
MDL_PROP_ATTR(kbcC, kbcC_EnergyEquationTypeEnm, "kbcC_PropBCEnergyEquationType", 1528, 0, 1);
MDL_PROP_ATTR(kbcC, kbcC_TurbulenceTypeEnm, "kbcC_PropBCTurbulenceType", 1528, 0, 1);
