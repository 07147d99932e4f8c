#pragma once

#include "kprC_StepNameProcedurePair.h"

/// Which solver product an analysis is for.
enum kprC_AnalysisProductEnm { STANDARD_ANALYSIS = 0, EXPLICIT_ANALYSIS = 1, CFD_ANALYSIS = 2, UNDEFINED_ANALYSIS = 3 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_AnalysisProductEnm>[] = {{"STANDARD_ANALYSIS", 0},
                                                                       {"EXPLICIT_ANALYSIS", 1},
                                                                       {"CFD_ANALYSIS", 2},
                                                                       {"UNDEFINED_ANALYSIS", 3},
                                                                       {nullptr, 0}};

/// The product of the first step after the initial one that takes part in the analysis; undefined if there is none.
TVO_API kprC_AnalysisProductEnm kprC_AnalysisProduct(kprC_StepList const& steps);

/// The type of the first step after the initial one that takes part in the analysis, 0 if there is none. Despite the
/// name a perturbation counts as well.
TVO_API unsigned int kprC_FirstGeneralAnalysisType(kprC_StepList const& steps);
