#pragma once

#include "ddr_Shortcut.h"
#include "kbcC_BC.h"

// The boundary conditions as a member of the model, and the paths to them.

DDR_CONTAINER_SHORTCUTS(kbcC, kprC_PropagatingContainer<kbcC_BC>, kbcC_BC);

template <>
struct ddr_MemberOf<ddr_Model, kprC_PropagatingContainer<kbcC_BC>> {
  static char const* Name() { return "bcs"; }
  static char const* ScriptingName() { return kbcC_BC::bcRepositoryCmd(); }
};
