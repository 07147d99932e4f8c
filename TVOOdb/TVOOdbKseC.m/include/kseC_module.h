#pragma once

#include "ddr_Module.h"

// The sections: start, end and type table.
DDR_DECLARE_MODULE(KseC, kseC);

/// Does nothing: a reference to it makes the linker keep the library.
TVO_API void kseC_formalize();
