#pragma once

#include "kloC_Types.h"
#include "mdl_PropagatingAttribute.h"

// Choices that loads have. All are stored by name, so that the numbers may change and the names may not.

/// How a load's magnitude is given over its region.
enum class kloC_DistributionEnm { UNIFORM = 0, USER_DEFINED = 1, FIELD = 2, DISCRETE_FIELD = 3 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_DistributionEnm>[] = {
    {"UNIFORM", 0}, {"USER_DEFINED", 1}, {"FIELD", 2}, {"DISCRETE_FIELD", 3}, {nullptr, 0}};

/// The same for a pressure, which has ways of its own besides.
enum class kloC_PressureDistributionEnm {
  UNIFORM = 0,
  USER_DEFINED = 1,
  FIELD = 2,
  DISCRETE_FIELD = 3,
  HYDROSTATIC = 4,
  STAGNATION = 5,
  VISCOUS = 6,
  TOTAL_FORCE = 7,
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_PressureDistributionEnm>[] = {
    {"UNIFORM", 0},     {"USER_DEFINED", 1}, {"FIELD", 2},   {"DISCRETE_FIELD", 3},
    {"HYDROSTATIC", 4}, {"STAGNATION", 5},   {"VISCOUS", 6}, {"TOTAL_FORCE", 7},
    {nullptr, 0}};

/// The space in which the parts of a model are drawn.
enum class kloC_SpaceEnm { THREE_D = 0, TWO_D_PLANAR = 1, AXISYMMETRIC = 2 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_SpaceEnm>[] = {
    {"THREE_D", 0}, {"TWO_D_PLANAR", 1}, {"AXISYMMETRIC", 2}, {nullptr, 0}};

/// Whether a load turns with what it acts on.
enum class kloC_FollowerEnm { OFF = 0, ON = 1 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_FollowerEnm>[] = {{"OFF", 0}, {"ON", 1}, {nullptr, 0}};

/// What a bolt is given: a force, a change of length, or the length that it has.
enum class kloC_BoltLoadMethodEnm { APPLY_FORCE = 0, ADJUST_LENGTH = 1, FIX_LENGTH = 2 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_BoltLoadMethodEnm>[] = {
    {"APPLY_FORCE", 0}, {"ADJUST_LENGTH", 1}, {"FIX_LENGTH", 2}, {nullptr, 0}};

/// What decides how far a fluid has come between two surfaces.
enum class kloC_EvolutionRegionEnum { CRITICAL_PRESSURE = 0, CONTACT_OPENING = 1, ENTIRE_SURFACE = 2 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kloC_EvolutionRegionEnum>[] = {
    {"CRITICAL_PRESSURE", 0}, {"CONTACT_OPENING", 1}, {"ENTIRE_SURFACE", 2}, {nullptr, 0}};

MDL_PROP_ATTR(kloC, kloC_BoltLoadMethodEnm, "kloC_BoltLoadMethod", 203, 0, 1);
MDL_PROP_ATTR(kloC, kloC_EvolutionRegionEnum, "kloC_PropEvolutionRegionEnum", 2307, 0, 1);
