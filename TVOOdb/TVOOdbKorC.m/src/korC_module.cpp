#include "korC_module.h"

#include "korC_oldClasses.h"
#include "korC_Types.h"

DDR_DEFINE_MODULE(KorC, korC,
                  {.id = korC_ModuleId,
                   .types = korC_TypeRows,
                   .oldClasses = dbc_OldClassesOf<korC_History>})

void korC_formalize() {}
