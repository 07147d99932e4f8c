#pragma once

#include "kprC_OldShapes.h"
#include "kprC_renamedClasses.h"

/// The old versions of the steps: family, group, the numbers at which it changed, where the last one goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
/// The random response is at 831 under both of its names: it had become a step before it got the name of one.
inline constexpr dbc_OldFamily kprC_OldFamilies[] = {
    {"kprC_AdptMeshCons", 5, {840}, 1327},
    {"kprC_AnalysisStep", 5, {302, 328, 831, 867, 1389, 2001, 2511}, 2608},
    {"kprC_Anneal", 5, {203, 204, 307}, dbc_Removed},
    {"kprC_Buckle", 5, {203, 204}, dbc_Removed},
    {"kprC_ComplexFrequency", 5, {307, 327, 441}, dbc_Removed},
    {"kprC_ComplexFrequencyStep", 5, {831}, 881},
    {"kprC_CoupledTempDisplacement", 5, {203, 204, 447, 448}, dbc_Removed},
    {"kprC_CoupledTempDisplacementStep", 5, {831, 1035}, 1563},
    {"kprC_CoupledThermalElectric", 5, {203, 502}, dbc_Removed},
    {"kprC_CoupledThermalElectrochemStructPorepressureStep", 5, {2507}, 2602},
    {"kprC_CoupledThermalElectrochemStructStep", 5, {2507}, 2602},
    {"kprC_DdbAnalysisStep", 5, {203}, dbc_Removed},
    {"kprC_DdbInitialStep", 5, {203}, dbc_Removed},
    {"kprC_DdbStep", 5, {203}, dbc_Removed},
    {"kprC_DirectCyclicStep", 5, {1372, 1378}, 1383},
    {"kprC_DynamicTempDisplacement", 5, {203}, dbc_Removed},
    {"kprC_ExplicitDynamics", 5, {203}, dbc_Removed},
    {"kprC_ExplicitDynamicsStep", 5, {831}, 1906},
    {"kprC_FlowRestart", 5, {1401}, 1405},
    {"kprC_FlowStep", 5, {1401, 1418}, 1618},
    {"kprC_Frequency", 5, {203, 204, 205, 443}, dbc_Removed},
    {"kprC_FrequencyStep", 5, {831, 858, 881, 1033, 1044}, 1346},
    {"kprC_GeneralProcedure", 4, {203}, dbc_Removed},
    {"kprC_Geostatic", 5, {203, 204, 447, 448}, dbc_Removed},
    {"kprC_GeostaticStep", 5, {831, 851, 1440, 1441, 1563}, 1856},
    {"kprC_HeatTransfer", 5, {203}, dbc_Removed},
    {"kprC_HeatTransferStep", 5, {831}, 851},
    {"kprC_ImplicitDynamics", 5, {203}, dbc_Removed},
    {"kprC_ImplicitDynamicsStep", 5, {831, 851, 1428, 1434, 1437}, 1446},
    {"kprC_LinearCtrl", 5, {328, 330, 1386}, 1576},
    {"kprC_MassDiffusion", 5, {203}, dbc_Removed},
    {"kprC_MassScaling", 5, {203}, 502},
    {"kprC_ModalDynamics", 5, {203, 445}, dbc_Removed},
    {"kprC_PerturbationProcedure", 4, {203}, dbc_Removed},
    {"kprC_PrimaryControls", 5, {302, 809, 867, 868, 888, 1706}, 2611},
    {"kprC_Procedure", 4, {203, 323, 326}, dbc_Removed},
    {"kprC_RandomResponse", 5, {203, 204, 445, 831}, dbc_Removed},
    {"kprC_RandomResponseStep", 5, {831}, 1385},
    {"kprC_ResponseSpectrum", 5, {203, 204, 445}, dbc_Removed},
    {"kprC_ResponseSpectrumComponent", 5, {203}, 1519},
    {"kprC_SCWrapper", 4, {401}, 831},
    {"kprC_Soils", 5, {203, 204, 447, 448}, dbc_Removed},
    {"kprC_SoilsStep", 5, {831, 851, 1035}, 1563},
    {"kprC_StandardDiagnosticPrint", 5, {302}, 506},
    {"kprC_StandardRestart", 5, {302}, 809},
    {"kprC_Static", 5, {203, 204, 447, 448}, dbc_Removed},
    {"kprC_StaticLinearPerturbation", 5, {203, 204}, dbc_Removed},
    {"kprC_StaticLinearPerturbationStep", 5, {831}, 2402},
    {"kprC_StaticRiks", 5, {203, 204, 447, 448}, dbc_Removed},
    {"kprC_StaticRiksStep", 5, {831}, 1563},
    {"kprC_StaticStep", 5, {831, 851, 1035}, 1563},
    {"kprC_SteadyStateDirect", 5, {203, 204, 436}, dbc_Removed},
    {"kprC_SteadyStateDirectStep", 5, {831}, 1045},
    {"kprC_SteadyStateModal", 5, {203, 204, 436, 445}, dbc_Removed},
    {"kprC_SteadyStateSubspace", 5, {445}, dbc_Removed},
    {"kprC_SteadyStateSubspaceStep", 5, {831}, 1045},
    {"kprC_Step", 5, {207, 439}, 1327},
    {"kprC_StepContainer", 4, {203, {800, 1}}, 831},
    {"kprC_StepControl", 5, {2511}, 2601},
    {"kprC_StepNameProcedurePair", 5, {203}, 831},
    {"kprC_SubspaceDynamics", 5, {203}, dbc_Removed},
    {"kprC_SubstructureGenerate", 5, {203, 403, 417, 420}, dbc_Removed},
    {"kprC_SubstructureGenerateStep", 5, {831, 1522, 1527}, 1858},
    {"kprC_TempDisplacementDynamicsStep", 5, {831}, 1906},
    {"kprC_UsaAddedMassGeneration", 5, {203, 800}, dbc_Removed},
    {"kprC_Visco", 5, {203, 204, 447, 448}, dbc_Removed},
    {"kprC_ViscoStep", 5, {831, 851, 1035}, 1563},
};

// What the links of the steps change, beside the values: attributes that are new at the revision which a link leads to,
// and those that had another form or were there before it.
inline constexpr char const* kprC_AddedAt858[] = {"substructureCutoffMultiplier", "firstCutoffMultiplier",
                                                  "secondCutoffMultiplier",       "residualModeDof",
                                                  "residualModeRegion",           "limitSavedEigenvectorRegion"};
inline constexpr char const* kprC_AddedAt1033[] = {"projectDamping", "acousticRangeFactor"};
inline constexpr dbc_OldAttribute kprC_BeforeAt1033[] = {{"acousticCoupling", cls_AttributeType::Int}};
inline constexpr char const* kprC_AddedAt1044[] = {"simLinearDynamics"};
inline constexpr char const* kprC_AddedAt867[] = {"convertSDI"};
inline constexpr char const* kprC_AddedAt1389[] = {"matrixStorage"};
inline constexpr char const* kprC_AddedAt2511[] = {"scc"};
inline constexpr char const* kprC_AddedAt2608[] = {"scc2"};
inline constexpr dbc_OldAttribute kprC_BeforeAt831[] = {
    {"procedure", cls_AttributeType::Object, kprC_TypeId("kprC_Procedure")}};

inline constexpr dbc_OldLink kprC_OldLinks[] = {
    {.family = "kprC_AnalysisStep", .version = 328, .before = kprC_BeforeAt831},
    {"kprC_AnalysisStep", 831, &kprC_AnalysisStep_831::Upgrade_831_867, kprC_AddedAt867},
    {"kprC_AnalysisStep", 867, &kprC_AnalysisStep_867::Upgrade_867_1389, kprC_AddedAt1389},
    {"kprC_AnalysisStep", 1389, &kprC_AnalysisStep_1389::Upgrade_1389_2001},
    {"kprC_AnalysisStep", 2001, &kprC_AnalysisStep_2001::Upgrade_2001_2511, kprC_AddedAt2511},
    {"kprC_AnalysisStep", 2511, &kprC_AnalysisStep_2511::Upgrade_2511_2608, kprC_AddedAt2608},
    {.family = "kprC_DdbAnalysisStep", .version = 203, .base = "kprC_DdbStep"},
    {.family = "kprC_DdbInitialStep", .version = 203, .base = "kprC_DdbStep"},
    {"kprC_FrequencyStep", 831, &kprC_FrequencyStep_831::Upgrade_831_858, kprC_AddedAt858},
    {"kprC_FrequencyStep", 858, &kprC_FrequencyStep_858::Upgrade_858_881},
    {"kprC_FrequencyStep", 881, &kprC_FrequencyStep_881::Upgrade_881_1033, kprC_AddedAt1033,
     kprC_BeforeAt1033},
    {"kprC_FrequencyStep", 1033, &kprC_FrequencyStep_1033::Upgrade_1033_1044, kprC_AddedAt1044},
    {.family = "kprC_Step", .version = 207, .row = &kprC_Step_207::Upgrade_207_409, .next = 409},
    {"kprC_Step", 439, &kprC_Step_439::Upgrade_439_1327},
    {"kprC_StepContainer", 800, &kprC_StepContainer_800::Upgrade_800_831},
    {.family = "kprC_StepNameProcedurePair", .version = 203, .finalize = &kprC_UpgradeProcedures},
};

inline constexpr dbc_History kprC_History{kprC_ModuleId, kprC_TypeRows, kprC_OldFamilies, kprC_OldLinks,
                                          kprC_RenamedClasses};
