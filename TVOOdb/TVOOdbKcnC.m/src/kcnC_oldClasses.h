#pragma once

#include "dbc_OldClasses.h"
#include "kcnC_Types.h"

/// The old versions of the connectors: family, group, the numbers at which it changed, where the last one goes.
/// Numbers stand in databases: one that was given is never changed or given to another shape.
inline constexpr dbc_OldFamily kcnC_OldFamilies[] = {
    {"kcnC_CCWrapper", 4, {401}, dbc_Removed},
    {"kcnC_CDCTerm", 5, {501}, dbc_Removed},
    {"kcnC_CDCTermContainer", 4, {507}, dbc_Removed},
    {"kcnC_CPCWrapper", 4, {401}, dbc_Removed},
    {"kcnC_Connector", 5, {203}, dbc_Removed},
    {"kcnC_ConnectorContainer", 4, {{800, 1}}, dbc_Removed},
    {"kcnC_ConnectorContainerShortcut", 4, {203}, dbc_Removed},
    {"kcnC_ConnectorProperty", 5, {203, 507, 818}, dbc_Removed},
    {"kcnC_ConnectorPropertyContainer", 4, {800}, dbc_Removed},
    {"kcnC_ConnectorShortcut", 4, {203}, dbc_Removed},
    {"kcnC_DerivComp", 5, {507}, dbc_Removed},
    {"kcnC_DerivCompContainer", 4, {800}, dbc_Removed},
};

inline constexpr dbc_History kcnC_History{kcnC_ModuleId, kcnC_TypeRows, kcnC_OldFamilies};
