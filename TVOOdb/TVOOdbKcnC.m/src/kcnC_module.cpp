#include "kcnC_module.h"

#include "kcnC_CORMLabelMap.h"
#include "kcnC_oldClasses.h"
#include "kcnC_Types.h"

namespace {

constexpr void (*singletonEnds[])() = {&kcnC_CORMLabelMap::Finalize};

}  // namespace

DDR_DEFINE_MODULE(KcnC, kcnC,
                  {.id = kcnC_ModuleId,
                   .types = kcnC_TypeRows,
                   .oldClasses = dbc_OldClassesOf<kcnC_History>,
                   .singletonEnds = singletonEnds,
                   .keep = &kbeC_formalize})

void kcnC_formalize() {}
void kbeC_formalize() {}
