#pragma once

#include "ddr_Module.h"

// The steps: start, end and type table.
DDR_DECLARE_MODULE(KprC, kprC);
