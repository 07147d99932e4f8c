#include "kloC_module.h"

#include "kloC_oldClasses.h"
#include "kloC_Types.h"

DDR_DEFINE_MODULE(KloC, kloC,
                  {.id = kloC_ModuleId,
                   .types = kloC_TypeRows,
                   .oldClasses = dbc_OldClassesOf<kloC_History>})
