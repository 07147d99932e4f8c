#pragma once

#include "omu_EnumCodec.h"

/// How a value came to be in a step.
enum mdl_PropAttributeStateEnm : int { UNSET = 0, SET = 1, PROPAGATED = 2, FREED = 3 };

template <>
inline constexpr omu_EnumRow omu_EnumRows<mdl_PropAttributeStateEnm>[] = {
    {"UNSET", 0}, {"SET", 1}, {"PROPAGATED", 2}, {"FREED", 3}, {nullptr, 0}};

/// How an object as a whole stands in a step.
enum mdl_PropagationStatusEnm : int {
  STATUS_NONE = 0,
  STATUS_CREATED = 1,
  STATUS_PROPAGATED = 2,
  STATUS_MODIFIED = 3,
  STATUS_DEACTIVATED = 4,
  STATUS_INACTIVE = 5,
  STATUS_TYPE_INVALID = 6,
  STATUS_INSTANCE_INVALID = 7,
  STATUS_BUILT_IN = 8,
  STATUS_BASE_PROPAGATED = 9,
  STATUS_BASE_MODIFIED = 10,
  STATUS_BASE_DEACTIVATED = 11,
  STATUS_BASE_BUILT_IN = 12,
  STATUS_COMPUTED = 13,
  STATUS_COMPUTED_PROPAGATED = 14,
  STATUS_COMPUTED_DEACTIVATED = 15,
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<mdl_PropagationStatusEnm>[] = {
    {"STATUS_NONE", 0},
    {"STATUS_CREATED", 1},
    {"STATUS_PROPAGATED", 2},
    {"STATUS_MODIFIED", 3},
    {"STATUS_DEACTIVATED", 4},
    {"STATUS_INACTIVE", 5},
    {"STATUS_TYPE_INVALID", 6},
    {"STATUS_INSTANCE_INVALID", 7},
    {"STATUS_BUILT_IN", 8},
    {"STATUS_BASE_PROPAGATED", 9},
    {"STATUS_BASE_MODIFIED", 10},
    {"STATUS_BASE_DEACTIVATED", 11},
    {"STATUS_BASE_BUILT_IN", 12},
    {"STATUS_COMPUTED", 13},
    {"STATUS_COMPUTED_PROPAGATED", 14},
    {"STATUS_COMPUTED_DEACTIVATED", 15},
    {nullptr, 0}};
