#include "kprC_module.h"

#include "kprC.h"
#include "kprC_oldClasses.h"
#include "mdl_PropagatingAttribute.h"

namespace {

// The attributes of general types are registered here, for all families that stand on the steps.
constexpr ddr_ModuleClass classes[] = {
#define CLASS(phase, ...) ddr_ClassOf<__VA_ARGS__>(phase),
#include "kprC_generalClasses.inc"
    CLASS(3, mdl_IdRepositoryOfCows<cow_String, kprC_Step>)
    CLASS(3, mdl_ExtensionWrapper<kprC_StepContainer>)
    CLASS(7, kprC_StepContainer)
    DDR_CONTAINER_SHORTCUT_CLASSES(kprC_StepContainer, kprC_Step)
    CLASS(3, kprC_TimePointContainer)
    CLASS(3, mdl_ExtensionWrapper<kprC_TimePointContainer>)
    DDR_CONTAINER_SHORTCUT_CLASSES(kprC_TimePointContainer, kprC_TimePoint)
#include "kprC_classes.inc"
#undef CLASS
};

constexpr ddr_ModuleContainer containers[] = {
    {[] { ddr_Model::RegisterStepContainer(new mdl_ExtensionWrapper<kprC_StepContainer>()); },
     &ddr_Model::UnRegisterStepContainer},
    {[] { ddr_Model::RegisterTimePointContainer(new mdl_ExtensionWrapper<kprC_TimePointContainer>()); },
     &ddr_Model::UnRegisterTimePointContainer},
};

constexpr void (*singletonEnds[])() = {&kprC_ProcedureTypeLabelMap::Finalize, &kprC_LabelsBitMap::Finalize};

}  // namespace

DDR_DEFINE_MODULE(KprC, kprC,
                  {.id = kprC_ModuleId,
                   .types = kprC_TypeRows,
                   .containers = containers,
                   .classes = classes,
                   .oldClasses = dbc_OldClassesOf<kprC_History>,
                   .singletonEnds = singletonEnds})
