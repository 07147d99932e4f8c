#pragma once

#include <string_view>

#include "typ_Row.h"

/// Module number of the part attributes in the type table.
inline constexpr unsigned int ptoC_ModuleId = 708;

/// All types of the module, live and retired. Row numbers are stored in databases: a row is never moved or given to
/// another type. A parent named here may stand in the table of another module or of the foundation.
inline constexpr typ_Row ptoC_TypeRows[] = {
  {  1, "ptoC_PartAttribute",                             ""},
  {  2, "ptoC_PartAttributeList",                         ""},
  {  3, "ptoC_SectionAssignment",                         "ptoC_PartAttribute"},
  {  4, "ptoC_MaterialOrientation",                       "ptoC_PartAttribute"},
  {  5, "ptoC_ConnectorOrientation",                      "ptoC_PartAttribute"},
  {  6, "ptoC_BeamOrientation",                           "ptoC_PartAttribute"},
  {  7, "ptoC_CompositeLayupContainer",                   ""},
  {  8, "mdl_MapOfCowsRepository<int, ptoC_CompositePly>", "mdl_Repository"},
  {  9, "ptoC_Retired09",                                 ""},
  { 10, "ptoC_Retired10",                                 ""},
  { 11, "ptoC_Retired11",                                 ""},
  { 12, "ptoC_Retired12",                                 ""},
  { 13, "ptoC_Retired13",                                 ""},
  { 14, "ptoC_Retired14",                                 ""},
  { 15, "ptoC_CompositeLayup",                            "ptoC_PartAttribute"},
  { 16, "ptoC_Retired16",                                 ""},
  { 17, "ptoC_Retired17",                                 ""},
  { 18, "ptoC_Retired18",                                 ""},
  { 19, "ptoC_Retired19",                                 ""},
  { 20, "ptoC_Retired20",                                 ""},
  { 21, "ptoC_Retired21",                                 ""},
  { 22, "ptoC_Retired22",                                 ""},
  { 23, "ptoC_CompositePly",                              ""},
  { 24, "ptoC_Retired24",                                 ""},
  { 25, "ptoC_Retired25",                                 ""},
  { 26, "ptoC_Retired26",                                 ""},
  { 27, "ptoC_Retired27",                                 ""},
  { 28, "ptoC_Retired28",                                 ""},
  { 29, "ptoC_Retired29",                                 ""},
};
static_assert(typ_RowsInOrder(ptoC_TypeRows));

/// The identifier of one of the module's types, by name; a name that the list lacks does not compile.
consteval unsigned int ptoC_TypeId(std::string_view name) { return typ_Id(ptoC_ModuleId, ptoC_TypeRows, name); }
