#include "kbcC_module.h"

#include "kbcC.h"
#include "kbcC_oldClasses.h"
#include "mdl_PropagatingAttribute.h"

namespace {

using Container = kprC_PropagatingContainer<kbcC_BC>;

constexpr ddr_ModuleClass classes[] = {
#define CLASS(phase, ...) ddr_ClassOf<__VA_ARGS__>(phase),
    DDR_CONTAINER_SHORTCUT_CLASSES(Container, kbcC_BC)
#include "kbcC_classes.inc"
#undef CLASS
};

constexpr ddr_ModuleContainer containers[] = {
    {[] { ddr_Model::RegisterBCContainer(new mdl_ExtensionWrapper<Container>()); }, &ddr_Model::UnRegisterBCContainer},
};

constexpr void (*singletonEnds[])() = {&kbcC_BCTypeLabelMap::Finalize};

}  // namespace

DDR_DEFINE_MODULE(KbcC, kbcC,
                  {.id = kbcC_ModuleId,
                   .types = kbcC_TypeRows,
                   .containers = containers,
                   .classes = classes,
                   .oldClasses = dbc_OldClassesOf<kbcC_History>,
                   .singletonEnds = singletonEnds,
                   .containersEndFirst = true})
