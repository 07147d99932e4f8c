#pragma once

#include "dbc_OldClasses.h"
#include "kprC_Types.h"

// What the older versions of all step-dependent families have in common.

/// The repositories before they had a base.
struct TVO_API kprC_PropagatingContainer_203 {
  /// Gives the row a base: a row of mdl_Repository, which has none.
  static void* Upgrade_203_510(dbc_Row const& oldRow, dbc_Row& newRow, int);
};

/// Brings the references "procedure" of a table to the steps: procedures were classes of their own until revision 831.
/// The step "stepName" counts, whatever copy of its procedure the row refers to; where the model has no step of that
/// name the reference keeps its row and gets the new class.
TVO_API void* kprC_UpgradeProcedures(dbc_Table const& oldTable, dbc_Table& newTable);

/// The link of a family's repository.
constexpr dbc_OldLink kprC_OldPropagatingContainer(char const* family) {
  return {.family = family, .version = 203, .row = &kprC_PropagatingContainer_203::Upgrade_203_510, .base = ""};
}
/// The link of a family's state quad.
constexpr dbc_OldLink kprC_OldStateQuad(char const* family) {
  return {.family = family, .version = 203, .finalize = &kprC_UpgradeProcedures};
}
