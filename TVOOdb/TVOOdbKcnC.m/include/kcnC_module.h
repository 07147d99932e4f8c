#pragma once

#include "ddr_Module.h"

// The connectors, of which only old classes are left: start, end and type table.
DDR_DECLARE_MODULE(KcnC, kcnC);

/// Does nothing: a reference to it makes the linker keep the library.
TVO_API void kcnC_formalize();
/// The same for the behaviors of connectors; the start of the connectors refers to it.
TVO_API void kbeC_formalize();
