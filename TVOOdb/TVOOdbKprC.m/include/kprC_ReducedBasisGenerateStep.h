#pragma once

#include "kprC_AnalysisStep.h"

/// "Reduced basis generation": a small set of shapes that spans the response of the model.
class TVO_API kprC_ReducedBasisGenerateStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_ReducedBasisGenerateStep)

 public:
  kprC_ReducedBasisGenerateStep() = default;

  KPRC_NAMED_CMD(constructorCmd, "ReducedBasisGenerateStep")
};
