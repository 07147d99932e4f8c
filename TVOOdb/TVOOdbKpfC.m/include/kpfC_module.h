#pragma once

#include "ddr_Module.h"

// The predefined fields: start, end and type table.
DDR_DECLARE_MODULE(KpfC, kpfC);

/// Does nothing: a reference to it makes the linker keep the library.
TVO_API void kpfC_formalize();
