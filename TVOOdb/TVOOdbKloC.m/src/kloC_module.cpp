#include "kloC_module.h"

#include "kloC.h"
#include "kloC_oldClasses.h"
#include "mdl_PropagatingAttribute.h"

namespace {

using Container = kprC_PropagatingContainer<kloC_Load>;

constexpr ddr_ModuleClass classes[] = {
#define CLASS(phase, ...) ddr_ClassOf<__VA_ARGS__>(phase),
    DDR_CONTAINER_SHORTCUT_CLASSES(Container, kloC_Load)
#include "kloC_classes.inc"
#undef CLASS
};

constexpr ddr_ModuleContainer containers[] = {
    {[] { ddr_Model::RegisterLoadContainer(new mdl_ExtensionWrapper<Container>()); },
     &ddr_Model::UnRegisterLoadContainer},
};

constexpr void (*singletonEnds[])() = {&kloC_LoadTypeLabelMap::Finalize};

}  // namespace

DDR_DEFINE_MODULE(KloC, kloC,
                  {.id = kloC_ModuleId,
                   .types = kloC_TypeRows,
                   .containers = containers,
                   .classes = classes,
                   .oldClasses = dbc_OldClassesOf<kloC_History>,
                   .singletonEnds = singletonEnds})
