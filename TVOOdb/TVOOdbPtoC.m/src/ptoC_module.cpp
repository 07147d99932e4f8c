#include "ptoC_module.h"

#include "ptoC_Types.h"

DDR_DEFINE_MODULE(PtoC, ptoC, {.id = ptoC_ModuleId, .types = ptoC_TypeRows})
