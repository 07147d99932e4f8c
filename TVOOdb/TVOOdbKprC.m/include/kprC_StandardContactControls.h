#pragma once

#include "kprC_ContactControls.h"

/// Contact in an implicit step: it has no parameters of its own.
class TVO_API kprC_StandardContactControls : public kprC_ContactControls {
  CLS_PERSISTENT(kprC, kprC_StandardContactControls)

 public:
  kprC_StandardContactControls() = default;
};
