#pragma once

#include "kprC_AnalysisStep.h"

/// "USA added mass generation": the mass of surrounding water that moves with a structure.
class TVO_API kprC_UsaAddedMassGenerationStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_UsaAddedMassGenerationStep)

 public:
  kprC_UsaAddedMassGenerationStep() = default;

  double TimePeriod() const override { return timePeriod; }

  KPRC_NAMED_CMD(constructorCmd, "UsaAddedMassGenerationStep")

  NlgeomEnm nlgeom = OFF;
  double timePeriod = 1.0;

 protected:
  NlgeomEnm OwnNlgeom() const override { return nlgeom; }
};
