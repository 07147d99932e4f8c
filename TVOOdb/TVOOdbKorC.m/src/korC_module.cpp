#include "korC_module.h"

#include "korC_Types.h"

DDR_DEFINE_MODULE(KorC, korC, {.id = korC_ModuleId, .types = korC_TypeRows})

void korC_formalize() {}
