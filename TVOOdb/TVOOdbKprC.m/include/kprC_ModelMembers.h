#pragma once

#include "ddr_Shortcut.h"
#include "kprC_Step.h"
#include "kprC_StepContainer.h"
#include "kprC_TimePoint.h"

// The steps and the time points as members of the model, and the paths to them.

CLS_INSTANCE(kprC, mdl_ExtensionWrapper<kprC_StepContainer>);
DDR_CONTAINER_SHORTCUTS(kprC, kprC_StepContainer, kprC_Step);

template <>
struct ddr_MemberOf<ddr_Model, kprC_StepContainer> {
  static char const* Name() { return "steps"; }
  static char const* ScriptingName() { return "steps"; }
};

/// The time points of a model by name.
using kprC_TimePointContainer = mdl_MapString2ObjCow<kprC_TimePoint>;

CLS_INSTANCE(kprC, mdl_MapString2ObjCow<kprC_TimePoint>);
CLS_INSTANCE(kprC, mdl_ExtensionWrapper<mdl_MapString2ObjCow<kprC_TimePoint>>);
DDR_CONTAINER_SHORTCUTS(kprC, mdl_MapString2ObjCow<kprC_TimePoint>, kprC_TimePoint);

template <>
struct ddr_MemberOf<ddr_Model, kprC_TimePointContainer> {
  static char const* Name() { return "timePoints"; }
  static char const* ScriptingName() { return "timePoints"; }
};
