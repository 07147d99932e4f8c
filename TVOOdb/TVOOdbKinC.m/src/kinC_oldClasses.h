#pragma once

#include "kinC_Types.h"
#include "kprC_OldShapes.h"

/// The old versions of the interactions: family, group, the numbers at which it changed, where the last one goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
/// State quads had a name of their own under their identifier.
inline constexpr dbc_OldFamily kinC_OldFamilies[] = {
    {"kinC_AcousticImpedance", 5, {808}, 1575},
    {"kinC_AcousticImpedanceProp", 5, {801}, 805},
    {"kinC_CavityRadiation", 5, {302, 1112}, 1444},
    {"kinC_CavityRadiationState", 5, {302}, 1112},
    {"kinC_ContactArea", 5, {877}, dbc_Removed},
    {"kinC_ContactExp", 5, {302, 416, 1301, 1624, 1639, 2000, 2006, 2103, 2301}, 2502},
    {"kinC_ContactExpState", 5, {302, 416, 1624, 1639, 2000, 2006, 2103, 2301}, 2502},
    {"kinC_ContactProperty", 5, {302, 870, 877, 879, 1324, 1336, 1432, 1435, 1617, 2604}, 2613},
    {"kinC_ContactStd", 5, {1301, 1622}, 1624},
    {"kinC_CyclicSymmetry", 5, {1140}, 1439},
    {"kinC_Damage", 5, {1336}, 1337},
    {"kinC_ExpInitialization", 5, {2000}, 2000},
    {"kinC_FSICosimulation", 5, {1414}, 1442},
    {"kinC_FilmCondition", 5, {302, 1572}, 2001},
    {"kinC_FluidCavityProperty", 5, {1600}, 1607},
    {"kinC_FluidInflator", 5, {1909}, 2501},
    {"kinC_FractureCriterion", 5, {1432, 1438}, 1703},
    {"kinC_GapElectricalConductance", 5, {1617}, 2513},
    {"kinC_GeometricProperties", 5, {879}, 2007},
    {"kinC_HeatGeneration", 5, {302}, 2513},
    {"kinC_IncidentWave", 5, {841, 846, 1133}, 1431},
    {"kinC_IncidentWaveProperty", 5, {830, 833, 1021, 1024, 1132}, 1431},
    {"kinC_Interaction", 5, {302, 871}, 1327},
    {"kinC_MasterSlave", 5, {416}, 2206},
    {"kinC_ModelChange", 5, {1371}, 1375},
    {"kinC_NormalBehavior", 5, {302, 322, 873, 878, 1036, 1040}, 1046},
    {"kinC_RadiationToAmbient", 5, {302, 1100, 1139}, 2001},
    {"kinC_RegionPair", 5, {302}, 1370},
    {"kinC_SelfContactState", 5, {302, 412}, 1374},
    {"kinC_SelfContactStd", 5, {302, 852, 870, 1041, 1047}, 1122},
    {"kinC_StateQuad", 5, {203}, 831, "kprC_PropagatingState<kinC_InteractionState>"},
    {"kinC_StdContactControls", 5, {411, 446, 586}, 873},
    {"kinC_StdInitialization", 5, {1300}, 1619},
    {"kinC_StdStabilization", 5, {1621}, 1636},
    {"kinC_StdXplCosimulation", 5, {1335}, 1341},
    {"kinC_SurfaceToSurfaceContact", 5, {302, 882, 887}, 1120},
    {"kinC_SurfaceToSurfaceContactState", 5, {302, 412}, 1374},
    {"kinC_SurfaceToSurfaceContactStd", 5, {302, 450, 870, 1041, 1047, 1122, 1332}, 1911},
    {"kinC_SurfaceToSurfaceContactXpl", 5, {302}, 314},
    {"kprC_PropagatingContainer<kinC_Interaction>", 4, {203}, 510},
};

inline constexpr dbc_OldLink kinC_OldLinks[] = {
    kprC_OldStateQuad("kinC_StateQuad"),
    kprC_OldPropagatingContainer("kprC_PropagatingContainer<kinC_Interaction>"),
};

inline constexpr dbc_History kinC_History{kinC_ModuleId, kinC_TypeRows, kinC_OldFamilies, kinC_OldLinks};
