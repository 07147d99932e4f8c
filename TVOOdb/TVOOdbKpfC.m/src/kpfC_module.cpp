#include "kpfC_module.h"

#include "kpfC_oldClasses.h"
#include "kpfC_Types.h"

DDR_DEFINE_MODULE(KpfC, kpfC,
                  {.id = kpfC_ModuleId,
                   .types = kpfC_TypeRows,
                   .oldClasses = dbc_OldClassesOf<kpfC_History>})

void kpfC_formalize() {}
