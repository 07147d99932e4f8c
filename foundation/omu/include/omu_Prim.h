#pragma once

#include <variant>

#include "cow_List.h"
#include "cow_String.h"
#include "dtmC_DatumRef.h"
#include "omu_PrimEnumBase.h"
#include "rgnC_Region.h"

/// A value as the scripting layer sees it: nothing, a truth value, a number or a text.
using omu_Prim = std::variant<std::monostate, bool, int, double, cow_String>;

/// A row of scripting values.
using omu_PrimTuple = cow_List<omu_Prim>;

/// The scripting value of a model value.
inline omu_Prim omu_ReturnPrim(bool value) { return value; }
inline omu_Prim omu_ReturnPrim(int value) { return value; }
inline omu_Prim omu_ReturnPrim(double value) { return value; }
inline omu_Prim omu_ReturnPrim(cow_String const& value) { return value; }
inline omu_Prim omu_ReturnPrim(omu_PrimEnumBase const& value) { return value.AsString(); }
inline omu_Prim omu_ReturnPrim(rgnC_Region const& value) { return value.name; }
inline omu_Prim omu_ReturnPrim(dtmC_DatumRef const& value) { return value.IsNullRef() ? omu_Prim() : omu_Prim(value.name); }
