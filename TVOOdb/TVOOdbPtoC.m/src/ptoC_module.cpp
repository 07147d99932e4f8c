#include "ptoC_module.h"

#include "ptoC_oldClasses.h"
#include "ptoC_Types.h"

DDR_DEFINE_MODULE(PtoC, ptoC,
                  {.id = ptoC_ModuleId,
                   .types = ptoC_TypeRows,
                   .oldClasses = dbc_OldClassesOf<ptoC_History>})
