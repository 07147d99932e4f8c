#pragma once

#include "korC_Types.h"
#include "kprC_OldShapes.h"

/// The old versions of the output requests: family, group, the numbers at which it changed, where the last one goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
/// State quads had a name of their own under their identifier.
inline constexpr dbc_OldFamily korC_OldFamilies[] = {
    {"korC_FieldOutput", 5, {302, 422}, 1608},
    {"korC_HistoryOutput", 5, {302, 412, 422, 440, 1130, 1141, 1347, 1348}, 1574},
    {"korC_HistoryOutputState", 5, {302}, 816},
    {"korC_Output", 5, {302, 310, 422, 860, 1049, 1224, 1327, 1507, 1550}, 2004},
    {"korC_OutputState", 5, {302}, 809},
    {"korC_StateQuad", 5, {203}, 831, "kprC_PropagatingState<korC_OutputState>"},
    {"kprC_PropagatingContainer<korC_FieldOutput>", 4, {203}, 510},
    {"kprC_PropagatingContainer<korC_HistoryOutput>", 4, {203}, 510},
};

inline constexpr dbc_OldLink korC_OldLinks[] = {
    kprC_OldStateQuad("korC_StateQuad"),
    kprC_OldPropagatingContainer("kprC_PropagatingContainer<korC_FieldOutput>"),
    kprC_OldPropagatingContainer("kprC_PropagatingContainer<korC_HistoryOutput>"),
};

inline constexpr dbc_History korC_History{korC_ModuleId, korC_TypeRows, korC_OldFamilies, korC_OldLinks};
