#pragma once

#include "ddr_Shortcut.h"
#include "kloC_Load.h"

// The loads as a member of the model, and the paths to them.

DDR_CONTAINER_SHORTCUTS(kloC, kprC_PropagatingContainer<kloC_Load>, kloC_Load);

template <>
struct ddr_MemberOf<ddr_Model, kprC_PropagatingContainer<kloC_Load>> {
  static char const* Name() { return "loads"; }
  static char const* ScriptingName() { return kloC_Load::loadRepositoryCmd(); }
};
