#pragma once

#include "kprC_AnalysisStep.h"

/// "Anneal": forgets stresses and plastic strains, as heating up and cooling down does.
class TVO_API kprC_AnnealStep final : public kprC_AnalysisStep {
  CLS_PERSISTENT(kprC, kprC_AnnealStep)

 public:
  /// The word that stands for a temperature that is not given.
  enum MaintainCurrentEnm { MAINTAIN_CURRENT = 0 };

  kprC_AnnealStep() = default;

  double TimePeriod() const override { return timePeriod; }

  KPRC_NAMED_CMD(constructorCmd, "AnnealStep")
  KPRC_CMD(refTemp)

  double refTemp = cls_NotGiven<double>;  ///< of all nodes behind the step; not given: as they are
  double timePeriod = 1.0;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_AnnealStep::MaintainCurrentEnm>[] = {{"MAINTAIN_CURRENT", 0},
                                                                                    {nullptr, 0}};
