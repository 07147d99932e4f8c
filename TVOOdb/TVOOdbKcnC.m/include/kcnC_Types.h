#pragma once

#include <string_view>

#include "typ_Row.h"

/// Module number of the connectors in the type table.
inline constexpr unsigned int kcnC_ModuleId = 684;

/// All types of the module, live and retired. Row numbers are stored in databases: a row is never moved or given to
/// another type. A parent named here may stand in the table of another module or of the foundation.
inline constexpr typ_Row kcnC_TypeRows[] = {
  {  1, "kcnC_CCWrapper",                                 ""},
  {  2, "kcnC_CDCTerm",                                   ""},
  {  3, "kcnC_CDCTermContainer",                          ""},
  {  4, "kcnC_CPCWrapper",                                ""},
  {  5, "kcnC_Connector",                                 ""},
  {  6, "kcnC_ConnectorContainer",                        ""},
  {  7, "kcnC_ConnectorContainerShortcut",                ""},
  {  8, "kcnC_ConnectorProperty",                         ""},
  {  9, "kcnC_ConnectorPropertyContainer",                ""},
  { 10, "kcnC_ConnectorShortcut",                         ""},
  { 11, "kcnC_DerivComp",                                 ""},
  { 12, "kcnC_DerivCompContainer",                        ""},
  { 13, "kcnC_Retired13",                                 ""},
  { 14, "kcnC_Retired14",                                 ""},
  { 15, "kcnC_Retired15",                                 ""},
  { 16, "kcnC_Retired16",                                 ""},
  { 17, "kcnC_Retired17",                                 ""},
  { 18, "kcnC_Retired18",                                 ""},
  { 19, "kcnC_Retired19",                                 ""},
  { 20, "kcnC_Retired20",                                 ""},
  { 21, "kcnC_Retired21",                                 ""},
  { 22, "kcnC_Retired22",                                 ""},
  { 23, "kcnC_Retired23",                                 ""},
  { 24, "kcnC_Retired24",                                 ""},
  { 25, "kcnC_Retired25",                                 ""},
  { 26, "kcnC_Retired26",                                 ""},
  { 27, "kcnC_Retired27",                                 ""},
  { 28, "kcnC_Retired28",                                 ""},
  { 29, "kcnC_Retired29",                                 ""},
  { 30, "kcnC_Retired30",                                 ""},
  { 31, "kcnC_Retired31",                                 ""},
  { 32, "kcnC_Retired32",                                 ""},
  { 33, "kcnC_Retired33",                                 ""},
  { 34, "kcnC_Retired34",                                 ""},
  { 35, "kcnC_Retired35",                                 ""},
  { 36, "kcnC_Retired36",                                 ""},
};
static_assert(typ_RowsInOrder(kcnC_TypeRows));

/// The identifier of one of the module's types, by name; a name that the list lacks does not compile.
consteval unsigned int kcnC_TypeId(std::string_view name) { return typ_Id(kcnC_ModuleId, kcnC_TypeRows, name); }
