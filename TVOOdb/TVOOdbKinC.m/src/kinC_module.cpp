#include "kinC_module.h"

#include "kinC_oldClasses.h"
#include "kinC_Types.h"

DDR_DEFINE_MODULE(KinC, kinC,
                  {.id = kinC_ModuleId,
                   .types = kinC_TypeRows,
                   .oldClasses = dbc_OldClassesOf<kinC_History>})
