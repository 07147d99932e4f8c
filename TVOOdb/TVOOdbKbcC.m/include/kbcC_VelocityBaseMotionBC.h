#pragma once

#include "kbcC_BaseMotionBC.h"

/// A velocity of the base in one step.
class TVO_API kbcC_VelocityBaseMotionBCState final : public kbcC_BaseMotionBCState {
  CLS_PERSISTENT(kbcC, kbcC_VelocityBaseMotionBCState)

 public:
  kbcC_VelocityBaseMotionBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "VelocityBaseMotionBCState")
};

/// A velocity of the base.
class TVO_API kbcC_VelocityBaseMotionBC final
    : public kbcC_StateAccess<kbcC_BaseMotionBC, kbcC_VelocityBaseMotionBCState> {
  CLS_PERSISTENT(kbcC, kbcC_VelocityBaseMotionBC)

 public:
  kbcC_VelocityBaseMotionBC() = default;

  KPRC_NAMED_CMD(constructorCmd, "VelocityBaseMotionBC")
};
