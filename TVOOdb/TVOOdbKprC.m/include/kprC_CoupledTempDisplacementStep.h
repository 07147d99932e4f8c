#pragma once

#include "kprC_CoupledStructuralStep.h"

/// "Coupled temp-displacement": displacements and temperatures solved for together.
class TVO_API kprC_CoupledTempDisplacementStep final : public kprC_CoupledStructuralStep {
  CLS_PERSISTENT(kprC, kprC_CoupledTempDisplacementStep)

 public:
  enum CreepIntegrationEnm : int { IMPLICIT_EXPLICIT = 0, EXPLICIT = 1, CREEP_OFF = 2, IMPLICIT = 3 };

  kprC_CoupledTempDisplacementStep() = default;

  SolutionTechniqueEnm SolutionTechnique() const override { return solutionTechnique; }
  /// Also number 93, of a value that is none of the enumeration's.
  void AssertValid() const override;

  KPRC_NAMED_CMD(constructorCmd, "CoupledTempDisplacementStep")
  KPRC_CMD(creepIntegration)
  KPRC_CMD(solutionTechnique)

  CreepIntegrationEnm creepIntegration = IMPLICIT_EXPLICIT;
  SolutionTechniqueEnm solutionTechnique = FULL_NEWTON;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_CoupledTempDisplacementStep::CreepIntegrationEnm>[] = {
    {"IMPLICIT_EXPLICIT", 0}, {"EXPLICIT", 1}, {"CREEP_OFF", 2}, {"IMPLICIT", 3}, {nullptr, 0}};
