#pragma once

#include "ddr_Module.h"

// The output requests: start, end and type table.
DDR_DECLARE_MODULE(KorC, korC);

/// Does nothing: a reference to it makes the linker keep the library.
TVO_API void korC_formalize();
