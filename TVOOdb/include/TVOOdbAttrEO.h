#pragma once

#include "TVOExport.h"

// Start and end of the library. Nothing of it works before the start; starts are counted, so that each user of the library
// in a process starts it and ends it once, and the last end takes it down.

#ifdef __cplusplus
/// Brings the library up with all that it stands on. `depth` rises by the number of levels that this call entered, which
/// is none if the library is up already.
TVO_API void TVOOdbAttrEO_initialize(int& depth);
/// Takes the library down if this is the end of the last start; `depth` then falls by what that start had added. Nothing
/// happens while the library is down. Objects must not outlive the library, but for their deletion.
TVO_API void TVOOdbAttrEO_finalize(int& depth);

extern "C" {
#endif
/// The same for callers that keep no depth.
TVO_API void TVOOdbAttrEO_initializeC(void);
TVO_API void TVOOdbAttrEO_finalizeC(void);
#ifdef __cplusplus
}
#endif
