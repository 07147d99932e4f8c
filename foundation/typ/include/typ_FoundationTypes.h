#pragma once

#include "TVOExport.h"
#include "typ_Row.h"

// The types of the foundation's own modules. Numbers are stored in databases.

inline constexpr unsigned short typ_mdlModuleId = 0xa;
inline constexpr typ_Row typ_mdlRows[] = {
    {1, "mdl_Repository", "mdl_Extension"},
    {2, "mdl_Extension", ""},
    {3, "mdl_ExtensionWrapper", "mdl_Extension"},
    {4, "mdl_MapOfCowsRepository", "mdl_Repository"},
    {5, "mdl_MapString2ObjCow", "mdl_Repository"},
    {6, "mdl_PropAttr<double>", ""},
    {7, "mdl_PropAttr<int>", ""},
    {8, "mdl_PropAttr<bool>", ""},
    {9, "mdl_PropAttr<cow_String>", ""},
    {10, "mdl_PropAttr<cls_xpListInt>", ""},
    {11, "mdl_PropAttr<cls_xpListString>", ""},
    {12, "mdl_PropAttr<cls_xp1DArrayInt>", ""},
    {13, "mdl_PropAttr<cls_xp1DArrayListFloat>", ""},
    {14, "mdl_PropAttr<cls_xp1DArrayListDouble>", ""},
    {15, "mdl_PropAttr<cls_xoList<rgnC_Region>>", ""},
    {16, "ddr_Model", ""},
    {17, "kadC_AdptMeshDomain", ""},
    {18, "klcC_LoadCase", ""},
};

inline constexpr unsigned short typ_clsModuleId = 0x23;
inline constexpr typ_Row typ_clsRows[] = {
    {1, "cls_GenericList", ""},
    {2, "cls_GenericMap", ""},
};

inline constexpr unsigned short typ_rgnModuleId = 0x24;
inline constexpr typ_Row typ_rgnRows[] = {
    {1, "rgnC_Region", ""},
};

inline constexpr unsigned short typ_dtmModuleId = 0x25;
inline constexpr typ_Row typ_dtmRows[] = {
    {1, "dtmC_DatumRef", ""},
};

static_assert(typ_RowsInOrder(typ_mdlRows) && typ_RowsInOrder(typ_clsRows));

/// Identifiers of the foundation's classes, by name; a name that the lists lack does not compile.
consteval unsigned int mdl_TypeId(std::string_view name) { return typ_Id(typ_mdlModuleId, typ_mdlRows, name); }
consteval unsigned int rgnC_TypeId(std::string_view name) { return typ_Id(typ_rgnModuleId, typ_rgnRows, name); }
consteval unsigned int dtmC_TypeId(std::string_view name) { return typ_Id(typ_dtmModuleId, typ_dtmRows, name); }

/// Enters the foundation's types. Calls are counted: the first acts, and the last typ_FinalizeFoundation undoes it.
TVO_API void typ_InitializeFoundation();
TVO_API void typ_FinalizeFoundation();
