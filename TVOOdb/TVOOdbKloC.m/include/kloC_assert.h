#pragma once

#include "TVOExport.h"

/// Numbers of the refusals of loads; their texts stand in the module's catalogue.
enum kloC_ErrorEnm : int {};

/// Raises the text of the number: nex_CmdException<cow_String, 1> where a user's command is refused,
/// nex_PrimException<atr_String, 1> for all others. A number without a text gives an empty one.
[[noreturn]] TVO_API void kloC_Refuse(int error);

/// Refuses with the text of the number unless the condition holds. Costs one comparison when it does.
inline void kloC_Assert(bool condition, kloC_ErrorEnm error) {
  if (!condition) kloC_Refuse(error);
}
inline void kloC_Assert(bool condition, int error) {
  if (!condition) kloC_Refuse(error);
}
