#pragma once

#include "ddr_Module.h"

// The interactions: start, end and type table.
DDR_DECLARE_MODULE(KinC, kinC);
