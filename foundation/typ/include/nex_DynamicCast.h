#pragma once

#include "TVOExport.h"

/// Refuses a cast to `target` of an object whose type is `actual` and does not derive from it by the type table: raises
/// nex_PrimException<cow_String, 3>, which names both types, at the position given.
TVO_API void nex_canDynamicCastRef(unsigned int target, unsigned int actual, char const* file, int line);
/// Whether an object of type `actual` can be seen as a `target`.
TVO_API bool nex_canDynamicCastPtr(unsigned int target, unsigned int actual) noexcept;
