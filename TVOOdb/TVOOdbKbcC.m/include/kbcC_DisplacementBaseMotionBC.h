#pragma once

#include "kbcC_BaseMotionBC.h"

class TVO_API kbcC_DisplacementBaseMotionBCState final : public kbcC_BaseMotionBCState {
  CLS_PERSISTENT(kbcC, kbcC_DisplacementBaseMotionBCState)

 public:
  kbcC_DisplacementBaseMotionBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "DisplacementBaseMotionBCState")
};

/// A displacement of the base.
class TVO_API kbcC_DisplacementBaseMotionBC final : public kbcC_BaseMotionBC {
  CLS_PERSISTENT(kbcC, kbcC_DisplacementBaseMotionBC)

 public:
  kbcC_DisplacementBaseMotionBC() = default;
  kbcC_DisplacementBaseMotionBCState const& ConstGetState(cow_String const& step) const;

  KPRC_NAMED_CMD(constructorCmd, "DisplacementBaseMotionBC")
};
