#pragma once

#include "TVOExport.h"
#include "omi_Singleton.h"
#include "uti_TranslationMap.h"

/// The labels of the analysis procedures, by type identifier, in the order of kprC_ProcedureRows.
class TVO_API kprC_ProcedureTypeLabelMap final : public uti_TranslationMap,
                                                 public omi_Singleton<kprC_ProcedureTypeLabelMap> {
 public:
  kprC_ProcedureTypeLabelMap();
};
