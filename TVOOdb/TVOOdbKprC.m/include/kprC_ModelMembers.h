#pragma once

#include "ddr_Shortcut.h"
#include "kprC_Step.h"
#include "kprC_StepContainer.h"

// The steps as a member of the model, and the paths to them.

CLS_INSTANCE(kprC, mdl_ExtensionWrapper<kprC_StepContainer>);
DDR_CONTAINER_SHORTCUTS(kprC, kprC_StepContainer, kprC_Step);

template <>
struct ddr_MemberOf<ddr_Model, kprC_StepContainer> {
  static char const* Name() { return "steps"; }
  static char const* ScriptingName() { return "steps"; }
};
