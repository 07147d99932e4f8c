#pragma once

#include "kprC_Step.h"
#include "kprC_typeUtils.h"

// Questions about the times at which a step can give output. They look at the step's attribute
// "timeIncrementationMethod"; a class without one has no fixed increments.

/// False for a step with fixed increments, which cannot be cut to meet given times. The flag, of use with the type of
/// the procedure alone, takes no part.
TVO_API bool kprC_TimeMarksConsistency(kprC_Step const& step, bool flag);
/// Whether output at exact times may be asked for: by the step's increments and by its procedure.
TVO_API bool kprC_TimeMarksIsAllowed(kprC_Step const& step, bool flag);
/// False for a transient step with fixed increments.
TVO_API bool kprC_NumberIntervalConsistency(kprC_Step const& step);
/// Whether output at even intervals may be asked for: by the step's increments and by its procedure.
TVO_API bool kprC_NumberIntervalIsAllowed(kprC_Step const& step);
