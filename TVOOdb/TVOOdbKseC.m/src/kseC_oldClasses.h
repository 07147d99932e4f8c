#pragma once

#include "dbc_OldClasses.h"
#include "kseC_Types.h"

/// The old versions of the sections: family, group, the numbers at which it changed, where the last one goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
inline constexpr dbc_OldFamily kseC_OldFamilies[] = {
    {"kseC_AcousticInterfaceSection", 5, {827}, 853},
    {"kseC_AcousticSection", 5, {827}, dbc_Removed},
    {"kseC_BeamSection", 5, {203, 204, 402, 421, 444, 1039, 1506, 1529}, 2303},
    {"kseC_CohesiveSection", 5, {429}, 449},
    {"kseC_CompositeShellSection", 5, {203, 306, 402, 1014}, 1101},
    {"kseC_CompositeSolidSection", 5, {203, 402}, 1051},
    {"kseC_ConnectorSection", 5, {840, 1005, 1020}, 1022},
    {"kseC_DiscreteSection", 5, {1700}, 2504},
    {"kseC_GeometryShellSection", 5, {203, 306, 402, 406, 407, 1018, 1100, 1101}, 1304},
    {"kseC_HomogenousShellSection", 5, {203, 305}, 306},
    {"kseC_Layer", 5, {203, 306, 444, 1014, 1051}, 1126},
    {"kseC_LayerProperties", 5, {305, 444}, 515},
    {"kseC_MembraneSection", 5, {203, 305, 402}, 1510},
    {"kseC_PointSection", 5, {203}, 402},
    {"kseC_Section", 5, {203}, 444},
    {"kseC_SectionContainerIMPLSC", 4, {203}, dbc_Removed},
    {"kseC_SectionContainerShortcut", 4, {203}, dbc_Removed},
    {"kseC_SectionIMPLSC", 4, {203}, dbc_Removed},
    {"kseC_SectionInSectionContainerShortcut", 4, {203}, dbc_Removed},
    {"kseC_SectionShortcut", 4, {203}, dbc_Removed},
    {"kseC_SurfaceSection", 5, {329}, 1100},
    {"kseC_TransverseShearBeam", 5, {203, 880}, 1358},
};

inline constexpr dbc_History kseC_History{kseC_ModuleId, kseC_TypeRows, kseC_OldFamilies};
