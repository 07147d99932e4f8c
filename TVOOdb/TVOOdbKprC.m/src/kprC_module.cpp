#include "kprC_module.h"

#include "kprC_AnalysisStep.h"
#include "kprC_CompositeDamping.h"
#include "kprC_ContactControls.h"
#include "kprC_Controls.h"
#include "kprC_DiagnosticPrint.h"
#include "kprC_DirectDamping.h"
#include "kprC_DirectDampingByFrequency.h"
#include "kprC_FrequencyStep.h"
#include "kprC_LabelsBitMap.h"
#include "kprC_LinearCtrl.h"
#include "kprC_ModalDynamicsStep.h"
#include "kprC_ModelMembers.h"
#include "kprC_Monitor.h"
#include "kprC_OutsideClasses.h"
#include "kprC_ProcedureTypeLabelMap.h"
#include "kprC_RayleighDamping.h"
#include "kprC_RayleighDampingByFrequency.h"
#include "kprC_Restart.h"
#include "kprC_StaticStep.h"
#include "kprC_Step.h"
#include "kprC_StepControl.h"
#include "kprC_StepCyclingControl.h"
#include "kprC_StepNameProcedurePair.h"
#include "kprC_Types.h"
#include "mdl_PropagatingAttribute.h"

namespace {

// The attributes of general types are registered here, for all families that stand on the steps.
constexpr ddr_ModuleClass classes[] = {
#define CLASS(phase, ...) ddr_ClassOf<__VA_ARGS__>(phase),
#include "kprC_generalClasses.inc"
    CLASS(4, mdl_IdRepositoryOfCows<cow_String, kprC_Step>)
    CLASS(4, mdl_ExtensionWrapper<kprC_StepContainer>)
    CLASS(7, kprC_StepContainer)
    DDR_CONTAINER_SHORTCUT_CLASSES(kprC_StepContainer, kprC_Step)
#include "kprC_classes.inc"
#undef CLASS
};

constexpr ddr_ModuleContainer containers[] = {
    {[] { ddr_Model::RegisterStepContainer(new mdl_ExtensionWrapper<kprC_StepContainer>()); },
     &ddr_Model::UnRegisterStepContainer},
};

constexpr void (*singletonEnds[])() = {&kprC_ProcedureTypeLabelMap::Finalize, &kprC_LabelsBitMap::Finalize};

}  // namespace

DDR_DEFINE_MODULE(KprC, kprC,
                  {.id = kprC_ModuleId,
                   .types = kprC_TypeRows,
                   .containers = containers,
                   .classes = classes,
                   .singletonEnds = singletonEnds})
