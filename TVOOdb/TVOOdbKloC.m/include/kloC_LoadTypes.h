#pragma once

#include "TVOExport.h"
#include "cow_List.h"
#include "cow_String.h"
#include "omi_Singleton.h"
#include "uti_TranslationMap.h"

/// The labels of the load types, by type identifier.
class TVO_API kloC_LoadTypeLabelMap final : public uti_TranslationMap, public omi_Singleton<kloC_LoadTypeLabelMap> {
 public:
  kloC_LoadTypeLabelMap();
};

// The menus: labels of the types that can be created in a step. `procedure` is the step's type identifier; the
// initial step, 0, takes no load. `mode` 0 gives the labels as stored, any other in the encoding of the locale. A
// procedure that is not known has empty menus.

TVO_API cow_List<cow_String> kloC_getMechanicalLoadTypesforStep(int procedure, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kloC_getThermalLoadTypesforStep(int procedure, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kloC_getFluidLoadTypesforStep(int procedure, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kloC_getElectricalLoadTypesforStep(int procedure, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kloC_getElectroChemicalLoadTypesforStep(int procedure, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kloC_getMassDiffusionLoadTypesforStep(int procedure, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kloC_getAcousticLoadTypesforStep(int procedure, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kloC_getOtherLoadTypesforStep(int procedure, TVOBasStringMode mode);

/// Whether one of the menus offers the type. A type that has no label is none to ask for: it raises cow_KeyError.
TVO_API bool kloC_isValidLoadTypeforStep(int loadType, int procedure);
/// The same, but false for a type without a label. Constant time, and nothing is allocated: every edit asks this for
/// each of its steps.
TVO_API bool kloC_isOfferedLoadTypeforStep(int loadType, int procedure) noexcept;
