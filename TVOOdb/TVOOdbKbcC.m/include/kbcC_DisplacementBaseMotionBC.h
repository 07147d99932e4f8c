#pragma once

#include "kbcC_BaseMotionBC.h"

/// A displacement of the base in one step.
class TVO_API kbcC_DisplacementBaseMotionBCState final : public kbcC_BaseMotionBCState {
  CLS_PERSISTENT(kbcC, kbcC_DisplacementBaseMotionBCState)

 public:
  kbcC_DisplacementBaseMotionBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "DisplacementBaseMotionBCState")
};

/// A displacement of the base.
class TVO_API kbcC_DisplacementBaseMotionBC final
    : public kbcC_StateAccess<kbcC_BaseMotionBC, kbcC_DisplacementBaseMotionBCState> {
  CLS_PERSISTENT(kbcC, kbcC_DisplacementBaseMotionBC)

 public:
  kbcC_DisplacementBaseMotionBC() = default;

  KPRC_NAMED_CMD(constructorCmd, "DisplacementBaseMotionBC")
};
