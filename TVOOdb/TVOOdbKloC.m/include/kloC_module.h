#pragma once

#include "ddr_Module.h"

// The loads: start, end and type table.
DDR_DECLARE_MODULE(KloC, kloC);
