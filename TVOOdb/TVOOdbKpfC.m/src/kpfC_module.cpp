#include "kpfC_module.h"

#include "kpfC_Types.h"

DDR_DEFINE_MODULE(KpfC, kpfC, {.id = kpfC_ModuleId, .types = kpfC_TypeRows})

void kpfC_formalize() {}
