#pragma once

#include "kbcC_Types.h"
#include "kprC_OldShapes.h"

/// The old versions of the boundary conditions: family, group, the numbers at which it changed, where the last goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
/// State quads had a name of their own under their identifier.
inline constexpr dbc_OldFamily kbcC_OldFamilies[] = {
    {"kbcC_BC", 5, {203, 871}, 1327},
    {"kbcC_ConnectorBC", 5, {203, 860}, 1631},
    {"kbcC_FluidCavityPressureBC", 5, {203}, 1604},
    {"kbcC_FluidCavityPressureBCState", 5, {203}, 1605},
    {"kbcC_FluidInletOutletBCState", 5, {1408}, 1528},
    {"kbcC_FluidWallConditionBCState", 5, {1408}, 1528},
    {"kbcC_StateQuad", 5, {203}, 831, "kprC_PropagatingState<kbcC_BCState>"},
    {"kbcC_SubmodelBC", 5, {203}, 2101},
    {"kbcC_SubmodelBCState", 5, {203, 210}, 1015},
    {"kprC_PropagatingContainer<kbcC_BC>", 4, {203}, 510},
};

inline constexpr dbc_OldLink kbcC_OldLinks[] = {
    kprC_OldStateQuad("kbcC_StateQuad"),
    kprC_OldPropagatingContainer("kprC_PropagatingContainer<kbcC_BC>"),
};

inline constexpr dbc_History kbcC_History{kbcC_ModuleId, kbcC_TypeRows, kbcC_OldFamilies, kbcC_OldLinks};
