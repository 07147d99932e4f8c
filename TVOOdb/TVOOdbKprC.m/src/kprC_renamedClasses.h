#pragma once

#include "kprC_Types.h"
#include "kprC_oldLinks.h"
#include "dbc_OldClasses.h"

#define RENAMED(oldId, family, newName, newId, ...) \
  {oldId, #family, #newName, newId, "TVOOdb/TVOOdbKprC.m/src/" #family "SC" __VA_OPT__(,) __VA_ARGS__}
#define PROCEDURE(oldId, family, newName, newId) RENAMED(oldId, family, newName, newId, &kprC_TieToAnalysisSteps)

/// Classes that have another name since, by their identifiers then and now. The procedures became steps.
inline constexpr dbc_RenamedClass kprC_RenamedClasses[] = {
    PROCEDURE(0x23c0005, kprC_Anneal,                   kprC_AnnealStep,                   0x23c0065),
    PROCEDURE(0x23c0006, kprC_Buckle,                   kprC_BuckleStep,                   0x23c0066),
    PROCEDURE(0x23c0007, kprC_CoupledTempDisplacement,  kprC_CoupledTempDisplacementStep,  0x23c0067),
    PROCEDURE(0x23c0008, kprC_CoupledThermalElectric,   kprC_CoupledThermalElectricStep,   0x23c0068),
    PROCEDURE(0x23c000f, kprC_ExplicitDynamics,         kprC_ExplicitDynamicsStep,         0x23c0069),
    PROCEDURE(0x23c0010, kprC_Frequency,                kprC_FrequencyStep,                0x23c006a),
    PROCEDURE(0x23c0011, kprC_Geostatic,                kprC_GeostaticStep,                0x23c006b),
    PROCEDURE(0x23c0012, kprC_HeatTransfer,             kprC_HeatTransferStep,             0x23c006c),
    PROCEDURE(0x23c0013, kprC_ImplicitDynamics,         kprC_ImplicitDynamicsStep,         0x23c006d),
    PROCEDURE(0x23c0014, kprC_MassDiffusion,            kprC_MassDiffusionStep,            0x23c006e),
    PROCEDURE(0x23c0015, kprC_ModalDynamics,            kprC_ModalDynamicsStep,            0x23c006f),
    PROCEDURE(0x23c0017, kprC_RandomResponse,           kprC_RandomResponseStep,           0x23c0070),
    PROCEDURE(0x23c0019, kprC_ResponseSpectrum,         kprC_ResponseSpectrumStep,         0x23c0071),
    PROCEDURE(0x23c001a, kprC_Soils,                    kprC_SoilsStep,                    0x23c0072),
    PROCEDURE(0x23c001b, kprC_Static,                   kprC_StaticStep,                   0x23c0073),
    PROCEDURE(0x23c001c, kprC_StaticRiks,               kprC_StaticRiksStep,               0x23c0074),
    PROCEDURE(0x23c001d, kprC_StaticLinearPerturbation, kprC_StaticLinearPerturbationStep, 0x23c0075),
    PROCEDURE(0x23c001f, kprC_SteadyStateDirect,        kprC_SteadyStateDirectStep,        0x23c0076),
    PROCEDURE(0x23c0021, kprC_SteadyStateModal,         kprC_SteadyStateModalStep,         0x23c0077),
    PROCEDURE(0x23c0022, kprC_SubspaceDynamics,         kprC_SubspaceDynamicsStep,         0x23c0078),
    PROCEDURE(0x23c0023, kprC_UsaAddedMassGeneration,   kprC_UsaAddedMassGenerationStep,   0x23c0079),
    PROCEDURE(0x23c0024, kprC_Visco,                    kprC_ViscoStep,                    0x23c007a),
    PROCEDURE(0x23c0026, kprC_DynamicTempDisplacement,  kprC_TempDisplacementDynamicsStep, 0x23c007b),
    PROCEDURE(0x23c002b, kprC_SubstructureGenerate,     kprC_SubstructureGenerateStep,     0x23c007c),
    PROCEDURE(0x23c0048, kprC_ComplexFrequency,         kprC_ComplexFrequencyStep,         0x23c007d),
    PROCEDURE(0x23c0053, kprC_SteadyStateSubspace,      kprC_SteadyStateSubspaceStep,      0x23c007e),
    RENAMED(0x23c0029, kprC_DdbAnalysisStep, kprC_AnalysisStep, 0x23c002e),
    RENAMED(0x23c0099, kprC_DdbInitialStep, kprC_InitialStep, 0x23c0003),
    RENAMED(0x23c009e, kprC_DdbStep, kprC_Step, 0x23c0001),
};

#undef PROCEDURE
#undef RENAMED
