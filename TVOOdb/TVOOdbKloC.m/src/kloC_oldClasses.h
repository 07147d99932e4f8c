#pragma once

#include "kloC_Types.h"
#include "kprC_OldShapes.h"

/// The old versions of the loads: family, group, the numbers at which it changed, where the last one goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
/// State quads had a name of their own under their identifier.
inline constexpr dbc_OldFamily kloC_OldFamilies[] = {
    {"kloC_BodyHeatFluxState", 5, {203}, 2001},
    {"kloC_BoltLoad", 5, {203, 1905}, 2600},
    {"kloC_ConnectorForce", 5, {203, 860}, 1627},
    {"kloC_ConnectorMoment", 5, {203, 860}, 1637},
    {"kloC_CoriolisForce", 5, {824}, 1003},
    {"kloC_Load", 5, {203, 815, 1327}, 1393},
    {"kloC_PipePressure", 5, {203}, 1322},
    {"kloC_Pressure", 5, {203, 884}, 1646},
    {"kloC_RotationalBodyForce", 5, {203, 1003}, 2500},
    {"kloC_Scalar", 5, {203, 1100}, 1646},
    {"kloC_ShellEdgeLoad", 5, {409}, 414},
    {"kloC_StateQuad", 5, {203}, 831, "kprC_PropagatingState<kloC_LoadState>"},
    {"kloC_SubmodelStressBased", 5, {1016}, 1017},
    {"kloC_SubstructureLoad", 5, {1500}, 1570},
    {"kloC_Traction", 5, {409}, 891},
    {"kloC_Vector", 5, {203, 1100}, 1646},
    {"kprC_PropagatingContainer<kloC_Load>", 4, {203}, 510},
};

inline constexpr dbc_OldLink kloC_OldLinks[] = {
    kprC_OldStateQuad("kloC_StateQuad"),
    kprC_OldPropagatingContainer("kprC_PropagatingContainer<kloC_Load>"),
};

inline constexpr dbc_History kloC_History{kloC_ModuleId, kloC_TypeRows, kloC_OldFamilies, kloC_OldLinks};
