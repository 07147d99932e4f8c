#pragma once

#include "kpfC_Types.h"
#include "kprC_OldShapes.h"

/// The old versions of the predefined fields: family, group, the numbers at which it changed, where the last one goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
inline constexpr dbc_OldFamily kpfC_OldFamilies[] = {
    {"kpfC_Field", 5, {302, 863}, 1327},
    {"kpfC_FluidThermalEnergy", 5, {1402}, 1518},
    {"kpfC_FromFileState", 5, {302}, 433},
    {"kpfC_MaterialAssignment", 5, {1103}, 1105},
    {"kpfC_StarFieldState", 5, {1902}, 1907},
    {"kpfC_StateQuad", 5, {203}, dbc_Removed},
    {"kpfC_StressGeo", 5, {1573}, 1577},
    {"kpfC_TemperatureState", 5, {302}, 432},
    {"kpfC_Velocity", 5, {302}, 1100},
    {"kprC_PropagatingContainer<kpfC_Field>", 4, {203}, 510},
};

inline constexpr dbc_OldLink kpfC_OldLinks[] = {
    kprC_OldPropagatingContainer("kprC_PropagatingContainer<kpfC_Field>"),
};

inline constexpr dbc_History kpfC_History{kpfC_ModuleId, kpfC_TypeRows, kpfC_OldFamilies, kpfC_OldLinks};
