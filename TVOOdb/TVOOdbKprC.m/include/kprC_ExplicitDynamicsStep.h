#pragma once

#include "kprC_ExplicitProcedure.h"

/// "Dynamic, Explicit": motion in short increments without iterations.
class TVO_API kprC_ExplicitDynamicsStep final : public kprC_ExplicitProcedure {
  CLS_PERSISTENT(kprC, kprC_ExplicitDynamicsStep)

 public:
  kprC_ExplicitDynamicsStep() = default;

  bool IsAdiabatic() const override { return adiabatic; }

  KPRC_NAMED_CMD(constructorCmd, "ExplicitDynamicsStep")
  KPRC_CMD(adiabatic)

  bool adiabatic = false;
};
