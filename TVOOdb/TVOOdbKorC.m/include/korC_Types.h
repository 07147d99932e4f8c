#pragma once

#include <string_view>

#include "typ_Row.h"

/// Module number of the output requests in the type table.
inline constexpr unsigned int korC_ModuleId = 576;

/// All types of the module, live and retired. Row numbers are stored in databases: a row is never moved or given to
/// another type. A parent named here may stand in the table of another module or of the foundation.
inline constexpr typ_Row korC_TypeRows[] = {
  {  1, "mdl_PropAttr<korC_VariablesTypeEnm>",            ""},
  {  2, "mdl_PropAttr<korC_TypeEnm>",                     ""},
  {  3, "korC_IntegratedOutputSection",                   ""},
  {  4, "mdl_MapString2ObjCow<korC_IntegratedOutputSection>", "mdl_MapString2ObjCow"},
  {  5, "ddr_Shortcut<korC_FieldOutput>",                 ""},
  {  6, "ddr_ShortcutImpl<korC_FieldOutput>",             ""},
  {  7, "ddr_DictionaryShortcut<kprC_PropagatingContainer<korC_FieldOutput>, korC_FieldOutput, 1>", "ddr_ShortcutImpl<korC_FieldOutput>"},
  {  8, "ddr_Shortcut<kprC_PropagatingContainer<korC_FieldOutput>>", ""},
  {  9, "ddr_ShortcutImpl<kprC_PropagatingContainer<korC_FieldOutput>>", ""},
  { 10, "ddr_MemberShortcut<ddr_Model, kprC_PropagatingContainer<korC_FieldOutput>, 1>", "ddr_ShortcutImpl<kprC_PropagatingContainer<korC_FieldOutput>>"},
  { 11, "mdl_ExtensionWrapper<kprC_PropagatingContainer<korC_FieldOutput>>", "mdl_ExtensionWrapper"},
  { 12, "ddr_Shortcut<korC_HistoryOutput>",               ""},
  { 13, "ddr_ShortcutImpl<korC_HistoryOutput>",           ""},
  { 14, "ddr_DictionaryShortcut<kprC_PropagatingContainer<korC_HistoryOutput>, korC_HistoryOutput, 1>", "ddr_ShortcutImpl<korC_HistoryOutput>"},
  { 15, "ddr_Shortcut<kprC_PropagatingContainer<korC_HistoryOutput>>", ""},
  { 16, "ddr_ShortcutImpl<kprC_PropagatingContainer<korC_HistoryOutput>>", ""},
  { 17, "korC_Output",                                    ""},
  { 18, "korC_OutputState",                               ""},
  { 19, "korC_FieldOutput",                               "korC_Output"},
  { 20, "korC_FieldOutputState",                          "korC_OutputState"},
  { 21, "korC_HistoryOutput",                             "korC_Output"},
  { 22, "korC_HistoryOutputState",                        "korC_OutputState"},
  { 23, "kprC_PropagatingState<korC_OutputState>",        ""},
  { 24, "kprC_PropagatingContainer<korC_FieldOutput>",    "mdl_Repository"},
  { 25, "kprC_PropagatingContainer<korC_HistoryOutput>",  "mdl_Repository"},
  { 26, "ddr_MemberShortcut<ddr_Model, kprC_PropagatingContainer<korC_HistoryOutput>, 1>", "ddr_ShortcutImpl<kprC_PropagatingContainer<korC_HistoryOutput>>"},
  { 27, "mdl_ExtensionWrapper<kprC_PropagatingContainer<korC_HistoryOutput>>", "mdl_ExtensionWrapper"},
  { 28, "ddr_Shortcut<korC_IntegratedOutputSection>",     ""},
  { 29, "ddr_ShortcutImpl<korC_IntegratedOutputSection>", ""},
  { 30, "ddr_DictionaryShortcut<mdl_MapString2ObjCow<korC_IntegratedOutputSection>, korC_IntegratedOutputSection, 1>", "ddr_ShortcutImpl<korC_IntegratedOutputSection>"},
  { 31, "ddr_Shortcut<mdl_MapString2ObjCow<korC_IntegratedOutputSection>>", ""},
  { 32, "ddr_ShortcutImpl<mdl_MapString2ObjCow<korC_IntegratedOutputSection>>", ""},
  { 33, "ddr_MemberShortcut<ddr_Model, mdl_MapString2ObjCow<korC_IntegratedOutputSection>, 1>", "ddr_ShortcutImpl<mdl_MapString2ObjCow<korC_IntegratedOutputSection>>"},
  { 34, "mdl_ExtensionWrapper<mdl_MapString2ObjCow<korC_IntegratedOutputSection>>", "mdl_ExtensionWrapper"},
  { 35, "korC_Retired35",                                 ""},
  { 36, "korC_Retired36",                                 ""},
  { 37, "korC_Retired37",                                 ""},
  { 38, "korC_Retired38",                                 ""},
  { 39, "korC_Retired39",                                 ""},
  { 40, "korC_Retired40",                                 ""},
  { 41, "korC_Retired41",                                 ""},
  { 42, "korC_Retired42",                                 ""},
  { 43, "korC_Retired43",                                 ""},
  { 44, "korC_Retired44",                                 ""},
  { 45, "korC_Retired45",                                 ""},
  { 46, "korC_Retired46",                                 ""},
  { 47, "korC_Retired47",                                 ""},
  { 48, "korC_Retired48",                                 ""},
  { 49, "korC_Retired49",                                 ""},
  { 50, "korC_Retired50",                                 ""},
  { 51, "korC_Retired51",                                 ""},
  { 52, "korC_Retired52",                                 ""},
  { 53, "korC_Retired53",                                 ""},
  { 54, "korC_Retired54",                                 ""},
  { 55, "korC_Retired55",                                 ""},
  { 56, "korC_Retired56",                                 ""},
  { 57, "korC_Retired57",                                 ""},
  { 58, "korC_Retired58",                                 ""},
  { 59, "korC_Retired59",                                 ""},
  { 60, "korC_Retired60",                                 ""},
  { 61, "korC_Retired61",                                 ""},
};
static_assert(typ_RowsInOrder(korC_TypeRows));

/// The identifier of one of the module's types, by name; a name that the list lacks does not compile.
consteval unsigned int korC_TypeId(std::string_view name) { return typ_Id(korC_ModuleId, korC_TypeRows, name); }
