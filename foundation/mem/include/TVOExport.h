#pragma once

/// Marks what a library gives to its callers; everything else is hidden.
/// Templates with static data or run-time type information that both libraries use carry it too, so that there is one copy.
#define TVO_API __attribute__((visibility("default")))
