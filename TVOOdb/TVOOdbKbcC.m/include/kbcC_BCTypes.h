#pragma once

#include "TVOExport.h"
#include "cow_List.h"
#include "cow_String.h"
#include "omi_Singleton.h"
#include "uti_TranslationMap.h"

/// The labels of the boundary condition types that can be on offer, by type identifier. kbcC_SymmBC is retired and has
/// none.
class TVO_API kbcC_BCTypeLabelMap final : public uti_TranslationMap, public omi_Singleton<kbcC_BCTypeLabelMap> {
 public:
  kbcC_BCTypeLabelMap();
};

// The menus: labels of the types that can be created in a step. `procedure` is the step's type identifier, 0 for the
// initial step; `product` a kprC_AnalysisProductEnm, or 4. `mode` 0 gives the labels as stored, any other in the encoding
// of the locale. A procedure that is not known has empty menus.

TVO_API cow_List<cow_String> kbcC_getMechanicalBCTypesforStep(int procedure, int product, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kbcC_getFluidBCTypesforStep(int procedure, int product, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kbcC_getElectricalBCTypesforStep(int procedure, int product, TVOBasStringMode mode);
TVO_API cow_List<cow_String> kbcC_getOtherBCTypesforStep(int procedure, int product, TVOBasStringMode mode);

/// Whether one of the menus offers the type. A type that has no label is none to ask for: it raises cow_KeyError.
TVO_API bool kbcC_isValidBCTypeforStep(int bcType, int procedure, int product);
/// The same for product 0.
TVO_API bool kbcC_isValidBCTypeforStep(int bcType, int procedure);
/// The same, but false for a type without a label. Constant time, and nothing is allocated: every edit asks this for each
/// of its steps.
TVO_API bool kbcC_isOfferedBCTypeforStep(int bcType, int procedure, int product) noexcept;
