#pragma once

#include "dbc_DatabaseConverter.h"

// The links of the module's classes that change values; named after the class's version that they start from.

/// Declares the row function of one link.
#define KPRC_OLD_LINK(Class, from, to) \
  struct Class##_##from {              \
    static void* Upgrade_##from##_##to(dbc_Row const& oldRow, dbc_Row& newRow, int row); \
  }

KPRC_OLD_LINK(kprC_AnalysisStep, 831, 867);
KPRC_OLD_LINK(kprC_AnalysisStep, 867, 1389);
KPRC_OLD_LINK(kprC_AnalysisStep, 1389, 2001);
KPRC_OLD_LINK(kprC_AnalysisStep, 2001, 2511);
KPRC_OLD_LINK(kprC_AnalysisStep, 2511, 2608);
KPRC_OLD_LINK(kprC_FrequencyStep, 831, 858);
KPRC_OLD_LINK(kprC_FrequencyStep, 858, 881);
KPRC_OLD_LINK(kprC_FrequencyStep, 881, 1033);
KPRC_OLD_LINK(kprC_FrequencyStep, 1033, 1044);
KPRC_OLD_LINK(kprC_Step, 207, 409);
KPRC_OLD_LINK(kprC_Step, 439, 1327);
KPRC_OLD_LINK(kprC_StepContainer, 800, 831);

#undef KPRC_OLD_LINK

/// Makes each analysis step that held a procedure of class `oldId` the base of the step that the procedure became. Two
/// that held the same row are refused: one of them would be lost.
void kprC_TieToAnalysisSteps(dbc_DatabaseConverter& converter, unsigned int oldId, dbc_Table& procedures);
