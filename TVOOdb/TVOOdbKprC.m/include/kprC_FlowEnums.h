#pragma once

#include "omu_EnumCodec.h"

/// Keeps the values out of the global scope, where other enumerations of flow settings have the same names.
namespace kprC_FlowEnums {
enum kprC_EnergyEquationEnm { ENERGY_NONE = 0, TEMPERATURE = 1 };
enum kprC_TurbulenceModelEnm { TURB_NONE = 0, SPALART = 1, KEPS_RNG = 2, VMS = 3 };
}  // namespace kprC_FlowEnums

/// Whether a flow analysis solves for the temperature as well: `kprC_EnergyEquationEnm::TEMPERATURE`.
using kprC_FlowEnums::kprC_EnergyEquationEnm;
/// How a flow analysis models turbulence: `kprC_TurbulenceModelEnm::SPALART`.
using kprC_FlowEnums::kprC_TurbulenceModelEnm;

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_EnergyEquationEnm>[] = {
    {"ENERGY_NONE", 0}, {"TEMPERATURE", 1}, {nullptr, 0}};
template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_TurbulenceModelEnm>[] = {
    {"TURB_NONE", 0}, {"SPALART", 1}, {"KEPS_RNG", 2}, {"VMS", 3}, {nullptr, 0}};
