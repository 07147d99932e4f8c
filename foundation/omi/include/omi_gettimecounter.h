#pragma once

#include "TVOExport.h"

/// Time stamp of an event: seconds since the library was loaded, strictly greater at every call. Not for two threads.
TVO_API double omi_gettimecounter();
