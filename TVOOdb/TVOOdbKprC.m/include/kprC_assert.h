#pragma once

#include "TVOExport.h"

/// Numbers of the refusals of the steps module; their texts stand in the module's catalogue.
enum kprC_ErrorEnm : int {};

/// Raises nex_PrimException<atr_String, 1> with the text of the number; a number without a text gives an empty one.
[[noreturn]] TVO_API void kprC_Refuse(int code);

/// Refuses with the text of the number unless the condition holds. Costs one comparison when it does.
inline void kprC_Assert(bool condition, kprC_ErrorEnm code) {
  if (!condition) kprC_Refuse(code);
}
inline void kprC_Assert(bool condition, int code) {
  if (!condition) kprC_Refuse(code);
}
