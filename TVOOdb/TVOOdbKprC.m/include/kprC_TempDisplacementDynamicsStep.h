#pragma once

#include "kprC_ExplicitProcedure.h"

/// "Dynamic, Temp-disp, Explicit": motion together with the conduction of heat, in short increments without
/// iterations.
class TVO_API kprC_TempDisplacementDynamicsStep final : public kprC_ExplicitProcedure {
  CLS_PERSISTENT(kprC, kprC_TempDisplacementDynamicsStep)

 public:
  kprC_TempDisplacementDynamicsStep() = default;

  KPRC_NAMED_CMD(constructorCmd, "TempDisplacementDynamicsStep")
};
