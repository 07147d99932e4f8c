#pragma once

#include "ddr_Module.h"

// The part attributes: start, end and type table.
DDR_DECLARE_MODULE(PtoC, ptoC);
