#pragma once

#include "ddr_Module.h"

// The boundary conditions: start, end and type table.
DDR_DECLARE_MODULE(KbcC, kbcC);
