#pragma once

#include <string_view>

#include "typ_Row.h"

/// Module number of the predefined fields in the type table.
inline constexpr unsigned int kpfC_ModuleId = 748;

/// All types of the module, live and retired. Row numbers are stored in databases: a row is never moved or given to
/// another type. A parent named here may stand in the table of another module or of the foundation.
inline constexpr typ_Row kpfC_TypeRows[] = {
  {  1, "kprC_PropagatingContainer<kpfC_Field>",          "mdl_Repository"},
  {  2, "kpfC_FieldState",                                ""},
  {  3, "kprC_PropagatingState<kpfC_FieldState>",         ""},
  {  4, "kpfC_Field",                                     ""},
  {  5, "mdl_PropAttr<kpfC_InterpolateEnm>",              ""},
  {  6, "ddr_Shortcut<kpfC_Field>",                       ""},
  {  7, "kpfC_TemperatureState",                          "kpfC_GeneralFieldBaseState"},
  {  8, "kpfC_Temperature",                               "kpfC_GeneralFieldBase"},
  {  9, "kpfC_PressureStressState",                       "kpfC_FromFileState"},
  { 10, "kpfC_PressureStress",                            "kpfC_Field"},
  { 11, "kpfC_FromFileState",                             "kpfC_FieldState"},
  { 12, "kpfC_GeneralFieldBaseState",                     "kpfC_FromFileState"},
  { 13, "kpfC_GeneralFieldBase",                          "kpfC_Field"},
  { 14, "ddr_ShortcutImpl<kpfC_Field>",                   ""},
  { 15, "kpfC_VectorState",                               "kpfC_FieldState"},
  { 16, "kpfC_Scalar",                                    "kpfC_Field"},
  { 17, "kpfC_1DLinearDistrib",                           "kpfC_Field"},
  { 18, "kpfC_MassFlowRateState",                         "kpfC_VectorState"},
  { 19, "kpfC_MassFlowRate",                              "kpfC_Field"},
  { 20, "kpfC_GeneralFieldState",                         "kpfC_GeneralFieldBaseState"},
  { 21, "kpfC_GeneralField",                              "kpfC_GeneralFieldBase"},
  { 22, "kpfC_Velocity",                                  "kpfC_Field"},
  { 23, "ddr_DictionaryShortcut<kprC_PropagatingContainer<kpfC_Field>, kpfC_Field, 1>", "ddr_ShortcutImpl<kpfC_Field>"},
  { 24, "kpfC_InitialStepState",                          "kpfC_FieldState"},
  { 25, "kpfC_StressTensor",                              ""},
  { 26, "kpfC_Stress",                                    "kpfC_Field"},
  { 27, "kpfC_VoidsRatio",                                "kpfC_Field"},
  { 28, "kpfC_RelativeDensity",                           "kpfC_Scalar"},
  { 29, "kpfC_Saturation",                                "kpfC_Field"},
  { 30, "kpfC_Concentration",                             "kpfC_Scalar"},
  { 31, "kpfC_Hardening",                                 "kpfC_Field"},
  { 32, "kpfC_PorePressure",                              "kpfC_Field"},
  { 33, "kpfC_SDV",                                       "kpfC_Field"},
  { 34, "ddr_Shortcut<kprC_PropagatingContainer<kpfC_Field>>", ""},
  { 35, "ddr_ShortcutImpl<kprC_PropagatingContainer<kpfC_Field>>", ""},
  { 36, "ddr_MemberShortcut<ddr_Model, kprC_PropagatingContainer<kpfC_Field>, 1>", "ddr_ShortcutImpl<kprC_PropagatingContainer<kpfC_Field>>"},
  { 37, "mdl_ExtensionWrapper<kprC_PropagatingContainer<kpfC_Field>>", "mdl_ExtensionWrapper"},
  { 38, "kpfC_StateQuad",                                 ""},
  { 39, "kpfC_Retired39",                                 ""},
  { 40, "kpfC_Retired40",                                 ""},
  { 41, "kpfC_Retired41",                                 ""},
  { 42, "kpfC_Retired42",                                 ""},
  { 43, "kpfC_Retired43",                                 ""},
  { 44, "kpfC_Retired44",                                 ""},
  { 45, "kpfC_InitialState",                              "kpfC_Field"},
  { 46, "kpfC_InitialStateState",                         "kpfC_FromFileState"},
  { 47, "kpfC_Retired47",                                 ""},
  { 48, "kpfC_IMARegion",                                 ""},
  { 49, "kpfC_Retired49",                                 ""},
  { 50, "kpfC_MaterialAssignment",                        "kpfC_Field"},
  { 51, "kpfC_IMAField",                                  ""},
  { 52, "kpfC_Retired52",                                 ""},
  { 53, "kpfC_FluidVelocity",                             "kpfC_Field"},
  { 54, "kpfC_FluidTurbulence",                           "kpfC_Field"},
  { 55, "kpfC_FluidThermalEnergy",                        "kpfC_Field"},
  { 56, "kpfC_FluidDensity",                              "kpfC_Field"},
  { 57, "kpfC_StressGeo",                                 "kpfC_Field"},
  { 58, "kpfC_InitialConditionFromFile",                  "kpfC_Field"},
  { 59, "kpfC_FluidCavityPressure",                       "kpfC_Field"},
  { 60, "kpfC_StarFieldState",                            "kpfC_GeneralFieldBaseState"},
  { 61, "kpfC_StarField",                                 "kpfC_GeneralFieldBase"},
  { 62, "kpfC_FluidElectricPotential",                    "kpfC_Field"},
  { 63, "kpfC_SolidElectricPotential",                    "kpfC_Field"},
  { 64, "kpfC_IonConcentration",                          "kpfC_Field"},
  { 65, "kpfC_Porosity",                                  "kpfC_Field"},
  { 66, "kpfC_BinderVf",                                  "kpfC_Field"},
  { 67, "kpfC_SolidVf",                                   "kpfC_Field"},
  { 68, "kpfC_ParticleSpeciesConcentration",              "kpfC_Field"},
  { 69, "kpfC_Retired69",                                 ""},
};
static_assert(typ_RowsInOrder(kpfC_TypeRows));

/// The identifier of one of the module's types, by name; a name that the list lacks does not compile.
consteval unsigned int kpfC_TypeId(std::string_view name) { return typ_Id(kpfC_ModuleId, kpfC_TypeRows, name); }
