#pragma once

#include "omu_EnumCodec.h"

/// Who keeps an object out of the analysis: the user, the suppression of a step, both or nobody.
enum kprC_SuppressionEnm { RESUMED = 0, SUPPRESSED_ATTRIBUTE = 1, SUPPRESSED_STEP = 2, SUPPRESSED_BOTH = 3 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_SuppressionEnm>[] = {
    {"RESUMED", 0}, {"SUPPRESSED_ATTRIBUTE", 1}, {"SUPPRESSED_STEP", 2}, {"SUPPRESSED_BOTH", 3}, {nullptr, 0}};

/// Suppresses an object for its step or for the user. `keep`, of use with the user's alone, turns what a step
/// suppressed into a suppression that outlives the step.
TVO_API void kprC_SuppressPropagatingAttribute(bool byStep, kprC_SuppressionEnm& state, bool keep);

/// Takes back the step's suppression, or the user's; number 259 for the user while the step is suppressed.
TVO_API void kprC_ResumePropagatingAttribute(bool byStep, kprC_SuppressionEnm& state);
