#include "kseC_module.h"

#include "kseC_oldClasses.h"
#include "kseC_Types.h"

DDR_DEFINE_MODULE(KseC, kseC,
                  {.id = kseC_ModuleId,
                   .types = kseC_TypeRows,
                   .oldClasses = dbc_OldClassesOf<kseC_History>})

void kseC_formalize() {}
