#include "kcnC_module.h"

#include "kcnC_Types.h"

DDR_DEFINE_MODULE(KcnC, kcnC, {.id = kcnC_ModuleId, .types = kcnC_TypeRows, .keep = &kbeC_formalize})

void kcnC_formalize() {}
void kbeC_formalize() {}
