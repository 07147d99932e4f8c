#pragma once

#include "dbc_OldClasses.h"
#include "ptoC_Types.h"

/// The old versions of the part attributes: family, group, the numbers at which it changed, where the last one goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
inline constexpr dbc_OldFamily ptoC_OldFamilies[] = {
    {"ptoC_BeamOrientation", 5, {203}, 1321},
    {"ptoC_CompositeLayup", 5, {1018, 1025, 1038, 1101}, 1452},
    {"ptoC_CompositePly", 5, {1018}, 1051},
    {"ptoC_ConnectorOrientation", 5, {518, 847, 854, 1339}, 1392},
    {"ptoC_MaterialOrientation", 5, {203, 814, 1028, 1042, 1321}, 1373},
    {"ptoC_SectionAssignment", 5, {203, 839, 1038, 1051, 1339, 1425}, 1433},
};

inline constexpr dbc_History ptoC_History{ptoC_ModuleId, ptoC_TypeRows, ptoC_OldFamilies};
