#pragma once

#include "cow_String.h"

/// Numbers of the refusals of boundary conditions; their texts stand in the module's catalogue.
enum kbcC_ErrorEnm : int {};
/// Numbers of the refusals that name something; 0 tells connector components that are not available.
enum kbcC_ContentErrorEnm : int {};

/// Raises the text of the number: nex_CmdException<cow_String, 1> where a user's command is refused,
/// nex_PrimException<atr_String, 1> for all others. A number without a text gives an empty one.
[[noreturn]] TVO_API void kbcC_Refuse(int error);
/// Raises nex_PrimException<atr_String, 1> with the text of the number, `content` in its place.
[[noreturn]] TVO_API void kbcC_RefuseContent(int error, cow_String const& content);

/// Refuses with the text of the number unless the condition holds. Costs one comparison when it does.
inline void kbcC_Assert(bool condition, kbcC_ErrorEnm error) {
  if (!condition) kbcC_Refuse(error);
}
inline void kbcC_Assert(bool condition, int error) {
  if (!condition) kbcC_Refuse(error);
}
inline void kbcC_AssertContent(bool condition, kbcC_ContentErrorEnm error, cow_String const& content) {
  if (!condition) kbcC_RefuseContent(error, content);
}
inline void kbcC_AssertContent(bool condition, int error, cow_String const& content) {
  if (!condition) kbcC_RefuseContent(error, content);
}
