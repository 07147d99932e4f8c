#pragma once

#include "kbcC_BaseMotionBC.h"

/// An acceleration of the base in one step.
class TVO_API kbcC_AccelerationBaseMotionBCState final : public kbcC_BaseMotionBCState {
  CLS_PERSISTENT(kbcC, kbcC_AccelerationBaseMotionBCState)

 public:
  kbcC_AccelerationBaseMotionBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "AccelerationBaseMotionBCState")
};

/// An acceleration of the base.
class TVO_API kbcC_AccelerationBaseMotionBC final
    : public kbcC_StateAccess<kbcC_BaseMotionBC, kbcC_AccelerationBaseMotionBCState> {
  CLS_PERSISTENT(kbcC, kbcC_AccelerationBaseMotionBC)

 public:
  kbcC_AccelerationBaseMotionBC() = default;

  KPRC_NAMED_CMD(constructorCmd, "AccelerationBaseMotionBC")
};
